"""The app menu by keyboard and by pointer, and the alert behind its first entry."""

import journey

MESSAGE = "Built by Dravel. Fueled by espresso and poor decisions."


def about(pelko):
    pelko.start()
    before = pelko.focused()
    for dismiss in ("Escape", "Return"):
        pelko.click(pelko.button("Menu"))
        entry = pelko.wait_for("About Pelko")
        pelko.stand_still()
        pelko.click(entry)
        alert = pelko.wait_alert(MESSAGE)
        assert alert.get_name() == "Pelko", alert.get_name()
        pelko.wait_focus_on("Close")
        pelko.keys("Tab")
        pelko.wait_focus_on("Close")
        pelko.keys(dismiss)
        pelko.wait_no_alert()

    # The same without a pointer.
    pelko.point_at(pelko.button("Start Writing"))
    pelko.keys("F10")
    pelko.wait_for("About Pelko")
    pelko.keys("Down")
    pelko.wait_focus_on("New Document")
    pelko.keys("Up")
    pelko.wait_focus_on("Quit")
    pelko.keys("Up")
    pelko.wait_focus_on("About Pelko")
    pelko.keys("Return")
    pelko.wait_alert(MESSAGE)
    pelko.keys("Escape")
    pelko.wait_no_alert()
    after = pelko.focused()
    assert (before and before.get_name()) == (after and after.get_name()), "the focus is given back"
    pelko.close()


journey.run(about)
