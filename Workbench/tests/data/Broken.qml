import QtQuick; Item { broken }
