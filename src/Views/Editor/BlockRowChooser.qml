pragma ComponentBehavior: Bound

import Qt.labs.qmlmodels
import Pelko

/// Chooses the delegate for a block by its kind.
DelegateChooser {
    id: root

    required property PageContext page

    role: "delegate"

    DelegateChoice {
        roleValue: "text"

        TextBlock {
            page: root.page
        }
    }

    DelegateChoice {
        roleValue: "divider"

        DividerBlock {
            page: root.page
        }
    }

    DelegateChoice {
        roleValue: "image"

        ImageBlock {
            page: root.page
        }
    }

    DelegateChoice {
        roleValue: "sticky"

        StickyBlock {
            page: root.page
        }
    }
}
