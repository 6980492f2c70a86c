pragma Singleton

import QtQuick

QtObject {
    readonly property color deepBackground: Qt.rgba(0.09, 0.08, 0.07, 1)
}
