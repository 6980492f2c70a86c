"""Six new documents in one space: five are made, the sixth is refused with a word."""

import journey

MESSAGE = "You've got 5 docs in this space. Archive one first. Constraints breed creativity."


def five_is_the_limit(pelko):
    pelko.start()
    for count in range(1, 6):
        pelko.keys("ctrl+n")
        pelko.wait_saved(lambda saved: len(saved) == count, f"{count} documents")
    pelko.keys("ctrl+n")
    alert = pelko.wait_alert(MESSAGE)
    assert alert.get_name() == "Five is the limit.", alert.get_name()
    pelko.wait_focus_on("Fine")
    pelko.keys("Return")
    pelko.wait_no_alert()

    documents = pelko.saved()
    assert [document["space"] for document in documents] == ["work"] * 5
    for document in documents:
        assert [block["type"] for block in document["blocks"]] == ["textLarge", "textSmall"]
        assert set(document) == {"id", "space", "blocks", "createdAt"}, document
    pelko.close()


journey.run(five_is_the_limit)
