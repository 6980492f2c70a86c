import QtQuick
Item { property bool offersDelete; signal deleteRequested; function openAt(x: real, y: real) { visible = true } }
