import QtQuick
import Dashboard

Item {
    DashboardCase {
        name: "Theme"

        readonly property var grounds: ["window", "surface", "raised", "hover", "selection"]

        // As the Web Content Accessibility Guidelines define them.
        function luminance(color) {
            const linear = [color.r, color.g, color.b].map(
                part => part <= 0.03928 ? part / 12.92 : Math.pow((part + 0.055) / 1.055, 2.4));
            return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2];
        }

        function contrast(one, other) {
            const lights = [luminance(one), luminance(other)];
            return (Math.max(...lights) + 0.05) / (Math.min(...lights) + 0.05);
        }

        function expectContrast(foregrounds, backgrounds, least) {
            for (const foreground of foregrounds) {
                for (const background of backgrounds) {
                    const found = contrast(Theme[foreground], Theme[background]);
                    verify(found >= least, foreground + " on " + background + ": " + found.toFixed(2));
                }
            }
        }

        function test_contrasts_data() {
            return [{ "tag": "dark", "dark": true }, { "tag": "light", "dark": false }];
        }

        function test_contrasts(data) {
            Theme.dark = data.dark;
            expectContrast(["text", "mutedText", "accent", "critical", "warning", "good", "unknown"],
                           grounds, 4.5);
            expectContrast(["outline"], grounds, 3);
            expectContrast(["text", "critical"], ["criticalGround"], 4.5);
            expectContrast(["text", "warning"], ["warningGround"], 4.5);
            expectContrast(["onStatus"], ["critical", "warning", "good", "unknown", "accent"], 4.5);
        }

        function test_zoomStaysWithinItsLevels_data() {
            return [{ "tag": "up", "zoom": 1, "steps": 1, "result": 1.1 },
                    { "tag": "down", "zoom": 1, "steps": -1, "result": 0.9 },
                    { "tag": "largest", "zoom": 3, "steps": 1, "result": 3 },
                    { "tag": "smallest", "zoom": 0.8, "steps": -1, "result": 0.8 },
                    { "tag": "beyond", "zoom": 7, "steps": -1, "result": 2.5 },
                    { "tag": "between", "zoom": 1.4, "steps": 1, "result": 1.75 }];
        }

        function test_zoomStaysWithinItsLevels(data) {
            Theme.zoom = data.zoom;
            Theme.zoomBy(data.steps);
            compare(Theme.zoom, data.result);
        }

        function test_stateColoursDiffer() {
            const colours = ["critical", "warning", "good", "unknown", "done"].map(
                state => String(Theme.stateColor(state)));
            compare(new Set(colours).size, 5);
        }
    }
}
