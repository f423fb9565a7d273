import QtQuick
import Dashboard

Item {
    id: root

    width: 300
    height: 200

    Component {
        id: panelComponent

        ClientPanel {
            width: 300
            surface: null
        }
    }

    DashboardCase {
        name: "ClientPanel"

        property var plugin
        property ClientPanel panel

        function prepare() {
            plugin = makePlugin();
            panel = make(panelComponent, { "surface": plugin });
        }

        function values() {
            return [inWindowValue("CPU"), inWindowValue("Memory")];
        }

        function inWindowValue(name) {
            const meter = itemsWhere(panel, item => item.name === name && "valueText" in item)[0];
            return meter.valueText;
        }

        function test_beforeTheFirstSampleNothingIsKnown() {
            prepare();
            compare(values(), ["unknown", "unknown"]);
        }

        function test_showsTheLatestSample() {
            prepare();
            plugin.clientResourceChanged(10, 20);
            plugin.clientResourceChanged(57, 42);
            compare(values(), ["57%", "42%"]);
            compare(panel.history.cpu, [10, 57]);
        }

        function test_failedSampleIsUnknownAndNeverANumber() {
            prepare();
            plugin.clientResourceChanged(57, 42);
            plugin.clientResourceChanged(-100, 43);
            compare(values(), ["unknown", "43%"]);
            verify(texts(panel).every(text => !text.includes("100")));
            compare(panel.history.cpu, [57, null]);
            plugin.clientResourceChanged(58, 43);
            compare(values(), ["58%", "43%"]);
        }

        function test_noMemoryAtAllInUseIsAFailedSample() {
            prepare();
            plugin.clientResourceChanged(0, 0);
            compare(values(), ["0%", "unknown"]);
            plugin.clientResourceChanged(1, 1);
            compare(values(), ["1%", "1%"]);
            compare([panel.history.cpu, panel.history.memory], [[0, 1], [null, 1]]);
        }

        function test_whyMemoryMayBeUnknownIsTold() {
            const doubt = "The sample failed, or less than 1% is in use: both are reported as 0.";
            prepare();
            compare(inWindow("Memory of this computer: unknown").Accessible.description, "");
            plugin.clientResourceChanged(-100, 0);
            const meter = inWindow("Memory of this computer: unknown");
            compare(meter.Accessible.description, doubt);
            compare(inWindow("CPU of this computer: unknown").Accessible.description, "");
            waitForRendering(panel);
            mouseMove(meter, meter.width / 2, meter.height / 2);
            tryVerify(() => tipTexts().includes(doubt));
            mouseMove(root, root.width - 1, root.height - 1);
        }

        function test_namesFitBesideWhatIsNotKnown() {
            prepare();
            waitForRendering(panel);
            panel.width = Theme.em(20.5);
            tryVerify(() => itemsWhere(panel, item => item instanceof Text
                                                      && item.truncated).length === 0);
        }

        function test_narrowItKeepsItsPeriod() {
            prepare();
            panel.width = Theme.em(13);
            tryVerify(() => hasText(panel, "last 5 min"));
        }

        function test_keepsFiveMinutes() {
            prepare();
            for (let i = 0; i < 310; ++i)
                plugin.clientResourceChanged(i % 100, 1);
            compare(panel.history.cpu.length, 300);
            compare(panel.history.cpu[299], 9);
            compare(panel.history.cpu[0], 10);
        }

        function test_accessibleNamesTellTheValues() {
            prepare();
            plugin.clientResourceChanged(57, 42);
            verify(inWindow("CPU of this computer: 57%"));
            verify(inWindow("Memory of this computer: 42%"));
        }
    }
}
