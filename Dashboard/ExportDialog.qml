import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts

/// Asks where to save a table and saves it as a CSV file.
Popup {
    id: dialog

    /// What writes the file; see DashboardView.files.
    required property var files

    /// What is saved: its function rows() takes the time and returns lists of fields, headings
    /// first. It is asked when the file is written, which holds what is shown then.
    property var sheet: null
    /// How many rows it has now.
    property int rowCount: 0

    readonly property string path: files && field.text.trim() !== ""
                                   ? files.resolve(field.text.trim()) : ""
    /// Whether the path names a file that would be replaced, as of the last look.
    property bool replaces: false
    /// Why the last try failed; empty when none did.
    property string failure

    /// The table was saved; @p count is the number of its rows without the headings.
    signal saved(path: string, count: int)

    /// Opens with a file @p name proposed for a sheet.
    function ask(name: string, newSheet: var) {
        sheet = newSheet;
        failure = "";
        field.text = files.resolve(name);
        look();
        open();
        field.forceActiveFocus(Qt.PopupFocusReason);
        field.selectAll();
    }

    function look() {
        replaces = path !== "" && files.exists(path);
    }

    function confirm() {
        if (path === "")
            return;
        const rows = sheet.rows(Clock.now);
        const reason = files.write(path, Csv.document(rows));
        if (reason === "") {
            close();
            saved(path, rows.length - 1);
        } else {
            failure = Format.fill(qsTr("%1 was not written: %2", "path and reason"), path, reason);
        }
    }

    onPathChanged: {
        failure = "";
        look();
    }

    anchors.centerIn: parent
    width: Math.min(Theme.em(46), (parent?.width ?? 0) - 2 * Theme.em(1))
    modal: true
    focus: true
    padding: Theme.em(1.2)

    background: Panel {
        color: Theme.surface
        border.color: Theme.outline
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: Theme.em(1)
        Accessible.role: Accessible.Dialog
        Accessible.name: title.text
        Keys.onReturnPressed: dialog.confirm()
        Keys.onEnterPressed: dialog.confirm()

        PaneTitle {
            id: title

            Layout.fillWidth: true
            text: qsTr("Export as CSV")
            remark: qsTr("%n row(s)", "", dialog.rowCount)
        }

        ColumnLayout {
            spacing: Theme.em(0.3)

            PlainLabel {
                text: qsTr("File")
                color: Theme.mutedText
            }

            ThemedTextField {
                id: field

                Layout.fillWidth: true
                Accessible.name: qsTr("File")
            }
        }

        RowLayout {
            Layout.fillWidth: true
            visible: note.text !== ""
            spacing: Theme.gap

            StateMark {
                status: dialog.failure !== "" ? "critical" : "warning"
            }

            Text {
                id: note

                Layout.fillWidth: true
                text: dialog.failure !== "" ? dialog.failure
                                            : dialog.replaces
                                              ? qsTr("This file exists and will be replaced") : ""
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                color: Theme.text
                font.pixelSize: Theme.normalFont
                Accessible.role: Accessible.AlertMessage
                Accessible.name: text
            }
        }

        RowLayout {
            Layout.alignment: Qt.AlignRight
            spacing: Theme.gap

            ActionButton {
                text: qsTr("Cancel")
                onClicked: dialog.close()
            }
            ActionButton {
                highlighted: true
                text: dialog.replaces ? qsTr("Replace") : qsTr("Export")
                enabled: dialog.path !== ""
                onClicked: dialog.confirm()
            }
        }
    }
}
