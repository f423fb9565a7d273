import QtQuick

/// The way of plain text into the clipboard.
TextEdit {
    visible: false
    textFormat: TextEdit.PlainText

    function put(content: string) {
        text = content;
        selectAll();
        copy();
        text = "";
    }
}
