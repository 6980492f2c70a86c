import QtQuick
import QtTest
import Pelko

Item {
    id: root

    property string content

    width: 300
    height: 60

    LineField {
        id: field

        content: root.content
        name: "Line"
        placeholder: ""
        width: parent.width
        onEdited: text => root.content = text
    }

    FullFieldNote {
        id: note

        field: field
        width: parent.width
        y: 20
    }

    // Has no other use than to put a text on the pasteboard.
    TextEdit {
        id: source

        y: 40
    }

    TestCase {
        name: "LineField"
        when: windowShown

        function init() {
            root.content = ""
            field.forceActiveFocus()
        }

        function copy(text) {
            source.text = text
            source.selectAll()
            source.copy()
        }

        function test_whatIsPastedBecomesOneLine_data() {
            return [
                { tag: "line feed", text: "two\nthree", line: "two three" },
                { tag: "tab", text: "two\tthree", line: "two three" },
                { tag: "line separator", text: "two\u2028three", line: "two three" },
                { tag: "several", text: "two\n\n\tthree\n", line: "two   three " },
            ]
        }

        function test_whatIsPastedBecomesOneLine(row) {
            root.content = "one four"
            field.cursorPosition = 4
            copy(row.text)
            keySequence("Ctrl+V")
            compare(root.content, "one " + row.line + "four")
            compare(field.text, root.content)
            compare(field.cursorPosition, 4 + row.line.length)
            keyClick("x")
            compare(root.content, "one " + row.line + "xfour")
        }

        function test_backspaceDeletesAnEmojiWhole_data() {
            return [
                { tag: "joined", text: "👩🏽‍💻", left: "" },
                { tag: "flag", text: "🇵🇱", left: "" },
                { tag: "keycap", text: "7️⃣", left: "" },
                { tag: "combining mark", text: "e\u0301", left: "e" },
                { tag: "letter", text: "ab", left: "a" },
            ]
        }

        function test_backspaceDeletesAnEmojiWhole(row) {
            root.content = "x" + row.text + "y"
            field.cursorPosition = 1 + row.text.length
            keyClick(Qt.Key_Backspace)
            compare(root.content, "x" + row.left + "y")
            compare(field.text, root.content)
            compare(field.cursorPosition, 1 + row.left.length)
        }

        function test_backspaceDeletesWhatIsSelected() {
            root.content = "one two"
            field.select(1, 5)
            keyClick(Qt.Key_Backspace)
            compare(root.content, "owo")
        }

        function test_whatDoesNotFitIsToldOf() {
            verify(!note.visible)
            copy("word ".repeat(50000))
            keySequence("Ctrl+V")
            compare(root.content.length, 200000)
            verify(note.visible)
            compare(note.text, "This field holds only 200,000 characters.")
            keyClick(Qt.Key_Backspace)
            verify(!note.visible)
            keySequence("Ctrl+Z")
            keySequence("Ctrl+Z")
            compare(root.content, "")
        }

        function test_backspaceAtTheStartChangesNothing() {
            root.content = "one"
            field.cursorPosition = 0
            keyClick(Qt.Key_Backspace)
            compare(root.content, "one")
        }
    }
}
