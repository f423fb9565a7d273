import QtQuick

/// What the error list is narrowed down to, and the proxy that does it.
QtObject {
    id: filters

    /// The view's own proxy over the error list, or null.
    property var proxy: null

    /// Bits of ErrorKinds' categories.
    property int categories: ErrorKinds.allCategories
    /// Part of the ids of the stations to show; empty for every station.
    property string stationID
    /// Text that the error's name or device contains, taken literally.
    property string text

    readonly property bool active: categories !== ErrorKinds.allCategories || stationID !== ""
                                   || text !== ""

    /// Everything is to be shown again.
    signal cleared

    function clear() {
        categories = ErrorKinds.allCategories;
        stationID = "";
        text = "";
        cleared();
    }

    // A fresh proxy shows everything, and each setting would make it go through all its rows again.
    onProxyChanged: {
        if (!active)
            return;
        applyCategories();
        applyStation();
        applyText();
    }
    onCategoriesChanged: applyCategories()
    onStationIDChanged: applyStation()
    onTextChanged: applyText()

    function applyCategories() {
        proxy?.setErrorCategory(categories);
    }

    function applyStation() {
        proxy?.setFilterParentStationID(stationID);
    }

    function applyText() {
        proxy?.setFilterFixedString(text);
    }
}
