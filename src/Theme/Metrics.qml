pragma Singleton

import QtQml

/// Spacing, radii and sizes that several views share, in device-independent pixels.
QtObject {
    readonly property int space2: 2
    readonly property int space4: 4
    readonly property int space6: 6
    readonly property int space8: 8
    readonly property int space10: 10
    readonly property int space12: 12
    readonly property int space14: 14
    readonly property int space16: 16
    readonly property int space20: 20
    readonly property int space24: 24
    readonly property int space32: 32
    readonly property int space48: 48

    readonly property int windowRadius: 12
    readonly property int dialogRadius: 20
    readonly property int overlayRadius: 22
    readonly property int cardRadius: 16
    readonly property int menuRadius: 14
    readonly property int stickyRadius: 14
    readonly property int fieldRadius: 12
    readonly property int listRowRadius: 11
    readonly property int codeRadius: 10
    readonly property int washRadius: 10
    readonly property int menuRowRadius: 9
    readonly property int pictureRadius: 8

    readonly property int stripHeight: 44
    readonly property int stripVeil: 60
    readonly property int captionSize: 28
    readonly property int captionGlyph: 14
    readonly property int captionSpacing: 4
    readonly property int captionEdge: 10
    readonly property int captionTop: 8
    readonly property int capsuleHeight: 26
    readonly property int barHeight: 52
    readonly property int chipHeight: 28
    readonly property int chipMinimumWidth: 36
    readonly property int chipPadding: 11
    readonly property int chipSymbol: 14
    readonly property int chipGap: 6
    readonly property int menuRowHeight: 30
    readonly property int keyCapHeight: 22
    readonly property int keyCapRadius: 6
    readonly property int sheetRow: 30
    readonly property int sheetHeading: 27
    readonly property int sheetPadding: 28
    readonly property int sheetWidth: 744
    readonly property int panelWidth: 240
    readonly property int panelPadding: 14
    readonly property int cardPaddingX: 15
    readonly property int cardPaddingY: 14
    readonly property int badgeHeight: 16
    readonly property int pillHeight: 24
    readonly property int taskListHeight: 160
    readonly property int taskToggleSize: 22
    readonly property int taskToggleGlyph: 13
    readonly property int taskTextIndent: 23
    readonly property int taskDeleteSize: 16
    readonly property int taskDeleteGlyph: 7
    readonly property int goalBarHeight: 5
    readonly property int streakCoin: 38
    readonly property int streakFlame: 16
    readonly property int eventBarWidth: 2
    readonly property int eventBarHeight: 22
    readonly property int eventTextIndent: 11

    readonly property int overlayWidth: measure + 64
    readonly property int overlayTop: 62
    readonly property int overlayPadding: 16
    readonly property int overlayFoot: 43
    readonly property int searchHeight: 42
    readonly property int spaceTabHeight: 46
    readonly property int spaceSymbol: 15
    readonly property int placeDot: 5
    readonly property int pageRowHeight: 48
    readonly property int hitRowHeight: 52
    readonly property int newPageRowHeight: 40
    readonly property int pageRowIndent: 38
    readonly property int rowButtonSize: 26
    readonly property int spaceCapsuleHeight: 22
    readonly property int navigationGlyph: 13
    readonly property int savedTick: 10
    /// The opacity of a running timer in focus mode.
    readonly property real quietTimer: 0.6

    readonly property int timerPanelWidth: 300
    readonly property int timerPanelPadding: 18
    readonly property int timerButtonSize: 34
    readonly property int ringSize: 84
    readonly property int sessionDot: 4
    readonly property int captureHeight: 38
    readonly property int sparksHintHeight: 100
    readonly property int labelFlame: 13

    readonly property int measure: 624
    readonly property int pageMargin: 48
    readonly property int pageTop: 60
    readonly property int pageFoot: 40
    /// Additional space above the page in focus mode.
    readonly property int focusAir: 32
    readonly property int bannerTop: 56
    readonly property int titleMargin: 96
    readonly property int capsuleDot: 4

    readonly property int caretWidth: 2
    readonly property int caretBlinks: 10
    readonly property int quoteBarWidth: 3
    readonly property int quoteBarRadius: 2
    readonly property int quoteIndent: quoteBarWidth + 18
    readonly property int codePaddingX: 18
    readonly property int codePaddingY: 15
    readonly property int codeTab: 32
    readonly property int stickyPadding: 18
    readonly property int emptyImageHeight: 100
    readonly property int bannerHeight: 280
    readonly property int bannerPadding: 24
    /// The largest ratio of height to width; higher pictures are shown narrower.
    readonly property int highestPicture: 4
    readonly property int todoToggleSize: 17
    readonly property int todoLine: 22
    readonly property int todoGap: 11
    readonly property int removeTodoGlyph: 10

    readonly property int gripWidth: 22
    readonly property int gripHeight: 26
    readonly property int gripSymbol: 16
    readonly property real liftedOpacity: 0.32
    /// The largest height of the picture of a dragged block, in pixels.
    readonly property int liftedPixels: 8192
    /// A dragged block within `dragEdge` of the edge of the page scrolls it: per second by `dragScroll` times the
    /// overlap.
    readonly property int dragEdge: 64
    readonly property int dragScroll: 14

    /// The scrolling distance of one notch of a wheel.
    readonly property int wheelStep: 72
}
