"""Six new documents in one space: five are made, the sixth is refused with a word."""

import journey
from desktop import until
from journey import screen_reader

MESSAGE = "You've got 5 docs in this space. Archive one first. Constraints breed creativity."


def five_is_the_limit(pelko):
    pelko.start()
    for count in range(1, 6):
        pelko.keys("ctrl+n")
        pelko.wait_saved(lambda saved: len(saved) == count, f"{count} documents")
    pelko.keys("ctrl+n")
    pelko.wait_for("Five is the limit.")
    assert pelko.find(MESSAGE), screen_reader().outline(pelko.root)
    until(lambda: pelko.focused() and pelko.focused().get_name() == "Fine", "the focus is on “Fine”")
    pelko.keys("Return")
    pelko.wait_gone("Five is the limit.")

    documents = pelko.saved()
    assert [document["space"] for document in documents] == ["work"] * 5
    for document in documents:
        assert [block["type"] for block in document["blocks"]] == ["textLarge", "textSmall"]
        assert set(document) == {"id", "space", "blocks", "createdAt"}, document
    pelko.close()


journey.run(five_is_the_limit)
