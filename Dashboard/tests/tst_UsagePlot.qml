import QtQuick
import Dashboard

Item {
    id: root

    width: 300
    height: 200

    Component {
        id: plotComponent

        UsagePlot {
            width: 118
            height: 100
        }
    }

    DashboardCase {
        name: "UsagePlot"

        function points(plot) {
            return plot.lines.map(line => line.map(point => [point.x, point.y]));
        }

        function test_newestSampleIsAtTheRightEdge() {
            const plot = make(plotComponent, { "samples": [10, 20, 30] });
            compare(points(plot), [[[114, 90], [116, 80], [118, 70]]]);
        }

        function test_onlyAsManySamplesAsThereIsRoomFor() {
            const plot = make(plotComponent, { "samples": Array(70).fill(50) });
            compare(points(plot)[0].length, 60);
            compare(points(plot)[0][0], [0, 50]);
        }

        function test_unknownSamplesLeaveAGap_data() {
            return [{ "tag": "null", "gap": null }, { "tag": "undefined", "gap": undefined },
                    { "tag": "negative", "gap": -100 }, { "tag": "not a number", "gap": NaN }];
        }

        function test_unknownSamplesLeaveAGap(data) {
            const plot = make(plotComponent, { "samples": [10, 10, data.gap, 10, 10] });
            compare(points(plot).length, 2);
            compare(plot.areas.length, 2);
        }

        function test_aLonelySampleIsADot() {
            const plot = make(plotComponent, { "samples": [50] });
            compare(points(plot), [[[117, 50], [119, 50]]]);
        }

        function test_nothingToShow() {
            const plot = make(plotComponent);
            compare(plot.lines, []);
            plot.samples = [null, null];
            compare(plot.lines, []);
            waitForRendering(plot);
        }

        function test_moreThanFullIsFull() {
            const plot = make(plotComponent, { "samples": [150, 100] });
            compare(points(plot)[0].map(point => point[1]), [0, 0]);
        }

        function test_drawsLineAndThreshold() {
            const plot = make(plotComponent, { "samples": Array(60).fill(20), "threshold": 60,
                                               "color": "#ff0000" });
            waitForRendering(plot);
            const picture = grabImage(plot);
            verify(picture.red(60, 80) > 150, "line");
            verify(picture.red(60, 90) > picture.blue(60, 90) + 20, "area");
            verify([2, 3, 4, 5, 6, 7, 8].some(x => picture.blue(x, 40) > 120), "threshold");
            verify(picture.red(60, 20) < 80, "ground");
        }
    }
}
