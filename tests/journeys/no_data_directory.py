"""Without any place for the data the program says so on standard error and ends with a number other than 0."""

import journey

MESSAGE = "Pelko: Could not locate Application Support directory."


def no_data_directory(pelko):
    pelko.launch(XDG_DATA_HOME=None, HOME=None)
    code = pelko.process.wait(timeout=60)
    assert code > 0, f"ended with {code}"
    words = pelko.errors.read_text()
    assert words.splitlines() == [MESSAGE], words
    pelko.errors.unlink()


journey.run(no_data_directory)
