"""The app menu by keyboard and by pointer, and the alert behind its first entry."""

import journey
from desktop import until

MESSAGE = "Built by Dravel. Fueled by espresso and poor decisions."


def about(pelko):
    pelko.start()
    before = pelko.focused()
    for dismiss in ("Escape", "Return"):
        pelko.click(pelko.button("Menu"))
        pelko.click(pelko.wait_for("About Pelko"))
        pelko.wait_for(MESSAGE)
        until(lambda: pelko.focused() and pelko.focused().get_name() == "Close", "the focus is on “Close”")
        pelko.keys("Tab")
        until(lambda: pelko.focused() and pelko.focused().get_name() == "Close", "the focus stays in the alert")
        pelko.keys(dismiss)
        pelko.wait_gone(MESSAGE)
    after = pelko.focused()
    assert (before and before.get_name()) == (after and after.get_name()), "the focus is given back"
    pelko.close()


journey.run(about)
