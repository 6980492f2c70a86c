pragma ComponentBehavior: Bound

import Qt.labs.qmlmodels
import Pelko

/// The row that shows a block, by the editor of its kind.
DelegateChooser {
    id: root

    required property PageContext page

    role: "rowEditor"

    DelegateChoice {
        roleValue: "writing"

        WritingRow {
            page: root.page
        }
    }

    DelegateChoice {
        roleValue: "divider"

        DividerRow {
            page: root.page
        }
    }

    DelegateChoice {
        roleValue: "image"

        ImageRow {
            page: root.page
        }
    }

    DelegateChoice {
        roleValue: "sticky"

        StickyRow {
            page: root.page
        }
    }
}
