"""Exports by command, with and without a running Pelko and where it cannot be done, then from the window by keys."""

import contextlib
import os
import pathlib
import subprocess

import journey
import library
import markdown
from desktop import shown, until

SIZE = 256 * 1024


def pelko_says(pelko, *arguments, **changes):
    done = subprocess.run(
        [pelko.program, *arguments], capture_output=True, text=True, timeout=60, env={**os.environ, **changes}
    )
    return done.returncode, done.stdout, done.stderr


@contextlib.contextmanager
def disk(folder, options):
    """A disk in the memory mounted at the folder; False where this process may not mount one."""
    folder.mkdir(parents=True)
    mount = ["mount", "-t", "tmpfs", "-o", options, "pelko-journey", str(folder)]
    mounted = subprocess.run(mount, stderr=subprocess.DEVNULL).returncode == 0
    try:
        yield mounted
    finally:
        if mounted:
            subprocess.run(["umount", "-l", str(folder)], check=True)


def words(blocks):
    return [(kind, what) for kind, what in blocks if kind != "image"]


def compare(documents, folder):
    """Every page of the library is there, under its space, and says the same."""
    exported = {page.id: page for page in markdown.pages_in(folder)}
    assert set(exported) == {document["id"].upper() for document in documents}
    for document in documents:
        page = exported[document["id"].upper()]
        assert page.front["space"] == document["space"] == page.path.parent.name
        assert words(page.blocks()) == words(markdown.shown(document["blocks"])), page.path


def everything_in(folder):
    return {path: path.read_bytes() for path in folder.rglob("*") if path.is_file()}


def without_a_window(pelko, home):
    notes = home / "my notes"
    told = f"Exported 3 pages and 1 picture to {notes}\n"
    assert pelko_says(pelko, "--export", str(notes)) == (0, told, "")
    compare(library.LIBRARY, notes)
    assert (notes / "work" / "The first page.md").exists()

    (notes / "work" / "The first page.md").write_text("mine")
    before = everything_in(notes)
    code, _, words_ = pelko_says(pelko, "--export", str(notes))
    assert code == 1 and "there already" in words_ and "--overwrite" in words_, words_
    assert everything_in(notes) == before, "nothing is replaced unasked"
    assert pelko_says(pelko, "--export", str(notes), "--overwrite") == (0, told, "")
    compare(library.LIBRARY, notes)

    assert pelko_says(pelko, "--export")[0] == 2
    assert pelko_says(pelko, "--overwrite")[0] == 2


def where_it_cannot_be_done(pelko, home):
    with disk(home / "read-only", f"ro,size={SIZE}") as mounted:
        if not mounted:
            (home / "read-only").chmod(0o500)
        code, out, error = pelko_says(pelko, "--export", str(home / "read-only" / "notes"))
        assert (code, out) == (1, "") and error.startswith("pelko: Export failed: "), error
        assert not list((home / "read-only").iterdir())

    with disk(home / "full", f"size={SIZE}") as mounted:
        if mounted:
            with contextlib.suppress(OSError), open(home / "full" / "filling", "wb", buffering=0) as filling:
                while True:
                    filling.write(bytes(4096))
            code, out, error = pelko_says(pelko, "--export", str(home / "full" / "notes"))
            assert (code, out) == (1, "") and error.startswith("pelko: Export failed: "), error
            assert {path.name for path in (home / "full").iterdir()} == {"filling"}, "nothing is left behind"

    kept = pelko.data_file.read_bytes()
    pelko.data_file.write_bytes(b"[not json")
    failed = (1, "", "pelko: Failed to load your documents.\n")
    assert pelko_says(pelko, "--export", str(home / "broken")) == failed
    assert not (home / "broken").exists()
    pelko.data_file.write_bytes(kept)


def beside_a_window(pelko, home):
    """The words of the last moment are exported too, and the export is made by the process that was asked."""
    pelko.type("Words of the last moment")
    until(
        lambda: "Words of the last moment" in [journey.screen_reader().text_of(field) for field in pelko.fields()],
        "the words are on the page",
    )
    folder = home / "here"
    folder.mkdir()
    done = subprocess.run([pelko.program, "--export", "beside"], cwd=folder, capture_output=True, text=True, timeout=60)
    assert (done.returncode, done.stdout, done.stderr) == (0, "Exported 3 pages and 1 picture to beside\n", "")
    compare(pelko.saved(), folder / "beside")
    page = next(page for page in markdown.pages_in(folder) if page.title == "The first page")
    assert ("textSmall", "Words of the last moment") in page.blocks()


def choose_folder(pelko, name):
    """The chooser begins where it was last; letters walk to the folder, Return goes in."""
    pelko.wait_for("Export to a folder")
    pelko.wait_for("Files")
    pelko.keys("ctrl+l")
    pelko.type(name)
    pelko.keys("Return")
    pelko.stand_still()
    for _ in range(12):
        if pelko.focused().get_name() == "Export here":
            break
        pelko.keys("Tab")
    pelko.wait_focus_on("Export here")
    pelko.keys("Return")
    pelko.wait_gone("Export to a folder")


def wait_result(pelko, title, message):
    alert = pelko.wait_alert(message)
    assert title is None or alert.get_name() == title, alert.get_name()
    pelko.keys("Return")
    pelko.wait_no_alert()


def from_the_window(pelko, home):
    shelf = home / "Shelf"
    shelf.mkdir()
    pelko.keys("ctrl+e")
    pelko.wait_for("Export to a folder")
    pelko.keys("Escape")
    pelko.wait_gone("Export to a folder")

    pelko.keys("ctrl+e")
    choose_folder(pelko, str(shelf))
    wait_result(pelko, "Exported.", "1 page in “Shelf”.")
    assert [path.name for path in shelf.iterdir()] == ["The first page.md"]
    written = markdown.Page(shelf / "The first page.md")
    assert written.blocks() == markdown.shown(library.page(pelko.saved())["blocks"])

    (shelf / "The first page.md").write_text("mine")
    pelko.keys("ctrl+e")
    choose_folder(pelko, str(shelf))
    assert pelko.wait_alert("“Shelf” has a file of that name.").get_name() == "Replace “The first page.md”?"
    pelko.wait_focus_on("Nah")
    pelko.keys("Return")
    pelko.wait_no_alert()
    assert (shelf / "The first page.md").read_text() == "mine"

    pelko.keys("ctrl+e")
    choose_folder(pelko, str(shelf))
    pelko.wait_alert("“Shelf” has a file of that name.")
    pelko.keys("Tab")
    pelko.wait_focus_on("Replace")
    pelko.keys("Return")
    wait_result(pelko, "Exported.", "1 page in “Shelf”.")
    assert markdown.Page(shelf / "The first page.md").blocks() == written.blocks()


def everything_by_menu(pelko, home):
    pelko.keys("F10")
    pelko.click(pelko.wait_for("Export everything…"))
    choose_folder(pelko, str(home / "Shelf"))
    wait_result(pelko, "Exported.", "3 pages and 1 picture in “Pelko”.")
    compare(pelko.saved(), home / "Shelf" / "Pelko")

    pelko.keys("F10")
    pelko.click(pelko.wait_for("Export everything…"))
    choose_folder(pelko, "/proc")
    wait_result(pelko, None, "Export failed: ")


def copied(pelko):
    pelko.keys("ctrl+shift+c")
    page = library.page(pelko.saved())
    until(
        lambda: markdown.parse(shown("xclip", "-selection", "clipboard", "-out")) == markdown.shown(page["blocks"]),
        "the page is on the pasteboard, as Markdown",
    )


def export(pelko):
    home = pathlib.Path(pelko.errors).parent
    pelko.write_library(library.as_text())
    without_a_window(pelko, home)
    where_it_cannot_be_done(pelko, home)
    pelko.start()
    beside_a_window(pelko, home)
    from_the_window(pelko, home)
    everything_by_menu(pelko, home)
    copied(pelko)
    pelko.close()


journey.run(export)
