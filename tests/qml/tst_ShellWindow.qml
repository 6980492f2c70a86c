pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Pelko

Item {
    id: stage

    width: 100
    height: 100

    Component {
        id: plainWindow

        Window {
            flags: Qt.Window | Qt.WindowCloseButtonHint | Qt.WindowMinMaxButtonsHint
            color: "#00ffffff"
        }
    }

    Component {
        id: accessor

        WindowAccessor {}
    }

    TestCase {
        name: "WindowAccessor"
        when: windowShown

        function test_hasNoSize() {
            const item = createTemporaryObject(accessor, stage)
            compare(item.width, 0)
            compare(item.height, 0)
        }

        function test_dressesTheWindowItIsPutInto() {
            const target = createTemporaryObject(plainWindow, stage)
            const before = target.flags
            createTemporaryObject(accessor, target.contentItem)
            compare(target.color, FirePalette.deepBackground)
            compare(target.flags, before | Qt.FramelessWindowHint)
        }

        function test_detachingChangesNothing() {
            const target = createTemporaryObject(plainWindow, stage)
            const item = createTemporaryObject(accessor, target.contentItem)
            const dressed = target.flags
            item.parent = null
            compare(target.flags, dressed)
            compare(target.color, FirePalette.deepBackground)
        }

        function test_dressesEachWindowItComesInto() {
            const first = createTemporaryObject(plainWindow, stage)
            const second = createTemporaryObject(plainWindow, stage)
            const item = createTemporaryObject(accessor, first.contentItem)
            item.parent = second.contentItem
            compare(second.color, FirePalette.deepBackground)
            verify(second.flags & Qt.FramelessWindowHint)
        }

        function test_waitsForAWindow() {
            const item = createTemporaryObject(accessor, null)
            const target = createTemporaryObject(plainWindow, stage)
            item.parent = target.contentItem
            verify(target.flags & Qt.FramelessWindowHint)
        }
    }
}
