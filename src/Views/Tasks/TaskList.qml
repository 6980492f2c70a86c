pragma ComponentBehavior: Bound

import QtQuick
import Qt.labs.qmlmodels
import Pelko

/// The tasks of all documents, each group with its document's title. It grows up to a maximum height and then scrolls.
/// It is one tab stop; the arrow keys move within it.
Item {
    id: root

    required property TasksPanelViewModel panel

    /// Space around the rows for focus rings and glows.
    readonly property int air: Metrics.space10
    readonly property bool empty: list.count === 0
    /// The row that gets the focus.
    readonly property int row: list.count > 0 ? panel.taskNear(list.currentIndex) : -1

    /// The last task was deleted by keyboard.
    signal emptied

    function goTo(index: int) {
        if (index < 0)
            return
        list.positionViewAtIndex(index, ListView.Contain)
        list.forceLayout()
        list.itemAtIndex(index).forceActiveFocus(Qt.TabFocusReason)
    }

    function goToNear(index: int) {
        const near = panel.taskNear(index)
        near < 0 ? emptied() : goTo(near)
    }

    height: Math.min(list.contentHeight, Metrics.taskListHeight) + 2 * air

    ListView {
        id: list

        Accessible.name: qsTr("Tasks")
        Accessible.role: Accessible.List
        anchors.fill: parent
        bottomMargin: root.air
        boundsBehavior: Flickable.StopAtBounds
        // With a cache, rows are cancelled too late when the model shrinks, and Qt warns.
        cacheBuffer: 0
        clip: true
        highlightFollowsCurrentItem: false
        interactive: contentHeight > Metrics.taskListHeight
        keyNavigationEnabled: false
        model: root.panel.tasks
        topMargin: root.air

        delegate: DelegateChooser {
            role: "rowKind"

            DelegateChoice {
                roleValue: "heading"

                TaskHeading {
                    width: list.width
                }
            }

            DelegateChoice {
                roleValue: "task"

                TaskRow {
                    id: task

                    Keys.onDownPressed: root.goTo(root.panel.taskAfter(index))
                    Keys.onUpPressed: root.goTo(root.panel.taskBefore(index))
                    air: root.air
                    // The focused row must stay a tab stop.
                    isTabStop: activeFocus || root.row === index
                    width: list.width
                    onActiveFocusChanged: if (activeFocus && index >= 0) list.currentIndex = index
                    onDeleted: {
                        const place = activeFocus ? index : -1
                        root.panel.deleteTodo(docID, blockID, todoID)
                        if (place >= 0)
                            root.goToNear(place)
                    }
                    onToggled: root.panel.toggleTodo(docID, blockID, todoID)
                }
            }
        }
    }

    PelkoScrollBar {
        anchors { bottom: parent.bottom; right: parent.right; rightMargin: root.air - Metrics.cardPaddingX; top: parent.top }
        flickable: list
        thickness: 3
    }
}
