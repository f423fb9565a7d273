pragma ComponentBehavior: Bound

import QtQuick
import Dashboard

Item {
    id: root

    width: 1000
    height: 100

    Component {
        id: headerComponent

        DashboardHeader {
            width: root.width
            siteName: "Harbour"
        }
    }

    DashboardCase {
        name: "DashboardHeader"

        function mark(header) {
            return itemsWhere(header, item => item instanceof StateMark)[0].status;
        }

        function textsNotReadWhole(header) {
            const isWhole = text => !text.truncated && text.mapToItem(header, 0, 0).y >= 0
                                    && text.mapToItem(header, 0, text.height).y <= header.height;
            return itemsWhere(header, item => item instanceof Text && item.visible && !isWhole(item))
                   .map(item => item.text);
        }

        function test_connectedSince() {
            const header = make(headerComponent, { "serverConnected": true,
                                                   "connectionSince": new Date(now - hour) });
            compare(texts(header), ["Harbour", "Connected", "since 13:07:33 CEST",
                                    "2024-05-14 14:07:33 CEST"]);
            compare(mark(header), "good");
        }

        function test_lostServerKnowsNothingSinceThen() {
            const header = make(headerComponent, { "connectionSince": new Date(now - hour) });
            verify(hasText(header, "Server connection lost"));
            verify(hasText(header, "Nothing is known since 13:07:33 CEST (1 h 0 min)"));
            compare(mark(header), "critical");
        }

        function test_sinceWhenNothingIsKnownIsReadWholeInANarrowHeader() {
            const header = make(headerComponent, { "serverConnected": false, "siteName": "Harbour",
                                                   "connectionSince": new Date(now - hour) });
            header.width = Theme.em(32);
            // The frame that is drawn next may have been laid out before.
            tryVerify(() => textsNotReadWhole(header).length === 0, 5000,
                      textsNotReadWhole(header).join());
        }

        function test_withoutATimeItTellsTheStateAlone() {
            const header = make(headerComponent);
            verify(hasText(header, "Nothing is known about the site"));
            header.serverConnected = true;
            verify(hasText(header, "Connected"));
            compare(texts(header).length, 3);
        }

        function test_switchesColours() {
            const header = make(headerComponent);
            click("Switch to light colours");
            compare(Theme.dark, false);
            click("Switch to dark colours");
            compare(Theme.dark, true);
        }

        function test_namesAreNotMarkup() {
            const header = make(headerComponent, { "siteName": "<i>x</i>" });
            verify(hasText(header, "<i>x</i>"));
            compare(itemsWhere(header, item => item.text === "<i>x</i>")[0].textFormat,
                    Text.PlainText);
        }
    }
}
