import QtQuick
import Dashboard

Item {
    id: root

    width: 300
    height: 200

    Component {
        id: cardComponent

        UsageCard {
            width: 280
            typeRole: 0
            titleRole: "CPU usage"
            subtitleRole: ""
            thresholdRole: 90
            usageListRole: []
            bandwidthRole: 0
        }
    }

    DashboardCase {
        name: "UsageCard"

        function history(...latest) {
            return Array(60 - latest.length).fill(0).concat(latest);
        }

        function hasWarning(card) {
            return itemsWhere(card, item => item instanceof StateMark && item.visible).length > 0;
        }

        function test_tellsValueAndThreshold() {
            const card = make(cardComponent, { "usageListRole": history(20, 57), "reported": 2 });
            compare(texts(card), ["CPU usage", "57%", "threshold 90%"]);
            compare(card.Accessible.name, "CPU usage: 57%, threshold 90%");
            verify(!hasWarning(card));
        }

        function test_aNameThatDoesNotFitIsTold() {
            const card = make(cardComponent, { "subtitleRole": "eth0" });
            verify(!card.truncated);
            card.subtitleRole = "a bridge of interfaces ".repeat(5);
            tryVerify(() => card.truncated);
            mouseMove(card, 20, 10);
            tryVerify(() => tipTexts().includes(card.name));
        }

        function test_atTheThresholdItWarns_data() {
            return [
                { "tag": "below", "value": 89, "over": false },
                { "tag": "rounded below", "value": 89.4, "over": false },
                { "tag": "rounded up", "value": 89.6, "over": true },
                { "tag": "at", "value": 90, "over": true },
                { "tag": "above", "value": 100, "over": true }
            ];
        }

        function test_atTheThresholdItWarns(data) {
            const card = make(cardComponent, { "usageListRole": history(data.value), "reported": 1 });
            compare(hasWarning(card), data.over);
            compare(hasText(card, "over threshold 90%"), data.over);
        }

        function test_zerosThatNobodyReportedAreUnknown() {
            const card = make(cardComponent, { "usageListRole": history() });
            compare(texts(card), ["CPU usage", "unknown", "threshold 90%"]);
            compare(card.samples.length, 0);
            card.reported = 5;
            compare(card.samples.length, 5);
            verify(hasText(card, "0%"));
        }

        function test_aFailedSampleIsUnknownAndNeverANumber() {
            const card = make(cardComponent, { "usageListRole": history(57, -100), "reported": 2 });
            compare(texts(card), ["CPU usage", "unknown", "threshold 90%"]);
            compare(card.Accessible.name, "CPU usage: not known");
            verify(!hasWarning(card));
            card.usageListRole = history(57, -100, 58);
            compare(texts(card), ["CPU usage", "58%", "threshold 90%"]);
        }

        function test_networkTellsInterfaceAndBandwidth() {
            const card = make(cardComponent, { "typeRole": 2, "titleRole": "Network usage",
                                               "subtitleRole": "eth0", "thresholdRole": 50,
                                               "usageListRole": history(12.5), "reported": 1,
                                               "bandwidthRole": 182 });
            compare(texts(card), ["Network usage · eth0", "13%", "bandwidth 182 Mbit/s · threshold 50%"]);
        }

        function test_onlyNetworksHaveABandwidth() {
            const card = make(cardComponent, { "usageListRole": history(1), "reported": 1,
                                               "bandwidthRole": 182 });
            verify(hasText(card, "threshold 90%"));
        }

        function test_emptyRowShowsNoPlaceholders() {
            const card = make(cardComponent, { "typeRole": undefined, "titleRole": undefined,
                                               "subtitleRole": undefined,
                                               "thresholdRole": undefined,
                                               "usageListRole": undefined,
                                               "bandwidthRole": undefined, "reported": 60 });
            compare(texts(card), ["unknown"]);
        }

        function test_partsOutOfSightAreHidden() {
            const card = make(cardComponent, { "viewTop": 0, "viewBottom": 10 });
            waitForRendering(card);
            const plot = itemsWhere(card, item => item instanceof UsagePlot)[0];
            compare(plot.opacity, 0);
            card.viewBottom = 100;
            compare(plot.opacity, 1);
        }
    }
}
