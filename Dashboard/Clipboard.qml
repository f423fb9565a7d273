import QtQuick

/// The way of plain text into the clipboard.
TextEdit {
    /// What takes texts there, see DashboardView.clipboard, or null: then this item does, which lays
    /// them out first.
    property var host: null

    visible: false
    textFormat: TextEdit.PlainText

    function put(content: string) {
        if (host) {
            host.put(content);
            return;
        }
        text = content;
        selectAll();
        copy();
        text = "";
    }
}
