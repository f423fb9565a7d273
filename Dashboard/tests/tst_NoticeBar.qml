import QtQuick
import Dashboard

Item {
    id: root

    width: 600
    height: 200

    Component {
        id: noticeComponent

        NoticeBar {}
    }

    DashboardCase {
        name: "NoticeBar"

        property NoticeBar notice

        function prepare() {
            notice = make(noticeComponent);
        }

        function test_showsUntilItsTimeIsOver() {
            prepare();
            compare(notice.visible, false);
            notice.show("done", "Done");
            compare(notice.visible, true);
            compare(texts(notice), ["Done"]);
            notice.timer.interval = 1;
            tryCompare(notice, "visible", false);
        }

        function test_failuresStayLonger() {
            prepare();
            notice.show("done", "Done");
            const usual = notice.timer.interval;
            notice.show("critical", "Refused");
            verify(notice.timer.interval > usual);
            compare(itemsWhere(notice, item => item instanceof StateMark)[0].status, "critical");
        }

        function test_staysWhileThePointerRestsOnIt() {
            prepare();
            notice.show("done", "Done");
            waitForRendering(notice);
            mouseMove(notice, notice.width / 2, notice.height / 2);
            notice.timer.triggered();
            compare(notice.visible, true);
            mouseMove(root, root.width - 1, root.height - 1);
            notice.timer.triggered();
            compare(notice.visible, false);
        }

        function test_isDismissed() {
            prepare();
            notice.show("done", "Done");
            click("Dismiss the notice");
            compare(notice.visible, false);
        }

        function test_anEmptyTextHidesIt() {
            prepare();
            notice.show("done", "Done");
            notice.show("done", "");
            compare(notice.visible, false);
        }

        function test_longTextsWrap() {
            prepare();
            notice.show("done", "A long notice ".repeat(20));
            tryVerify(() => notice.height > Theme.em(3));
            verify(notice.width <= root.width);
        }
    }
}
