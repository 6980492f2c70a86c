pragma Singleton

import QtQuick
import Pelko

/// Every face of the app with size, weight and tracking, and the line heights beside them. Sizes are given in
/// device-independent pixels and may be fractions, which is why `FontScale` makes them.
QtObject {
    id: type

    readonly property var installed: Qt.fontFamilies()
    readonly property string textFamily: installed.includes("Inter") ? "Inter" : Application.font.family
    readonly property string displayFamily: installed.includes("Inter Display") ? "Inter Display" : textFamily
    readonly property string monoFamily: installed.includes("JetBrains Mono") ? "JetBrains Mono" : "monospace"

    readonly property font bannerTitle: face(displayFamily, 38, Font.Bold, -0.7)
    readonly property font heading: face(displayFamily, 34, Font.Bold, -0.5)
    readonly property font body: face(textFamily, 16.5, Font.Normal, 0)
    readonly property font quote: italic(displayFamily, 18)
    readonly property font code: face(monoFamily, 13.5, Font.Normal, 0)
    readonly property font checklist: face(textFamily, 15, Font.Normal, 0)
    readonly property font stickyLabel: face(textFamily, 11, Font.DemiBold, 0.3)
    readonly property font sheetTitle: face(displayFamily, 20, Font.DemiBold, 0)
    readonly property font dialogTitle: face(displayFamily, 17, Font.DemiBold, 0)
    readonly property font message: face(textFamily, 13, Font.Normal, 0)
    readonly property font button: face(textFamily, 13, Font.Medium, 0)
    readonly property font listTitle: face(textFamily, 14, Font.Medium, 0)
    readonly property font meta: face(textFamily, 11.5, Font.Normal, 0)
    readonly property font menuRow: face(textFamily, 13, Font.Normal, 0)
    readonly property font menuKey: face(textFamily, 11, Font.Normal, 0)
    readonly property font capsule: face(textFamily, 11, Font.Medium, 0)
    readonly property font caption: face(textFamily, 10, Font.Bold, 1.2)

    readonly property int bannerTitleLine: 44
    readonly property int headingLine: 42
    readonly property int bodyLine: 27
    readonly property int quoteLine: 29
    readonly property int codeLine: 22
    readonly property int checklistRow: 30
    readonly property int dialogTitleLine: 23
    readonly property int messageLine: 19
    readonly property int metaLine: 16

    function face(family: string, pixels: real, weight: int, tracking: real) : font {
        return FontScale.face(family, pixels, weight, tracking, false)
    }

    function italic(family: string, pixels: real) : font {
        return FontScale.face(family, pixels, Font.Normal, 0, true)
    }
}
