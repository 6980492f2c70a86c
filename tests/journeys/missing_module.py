"""On a system without one of the QML modules the program names it, on standard error and in a plain window, and ends
with 1."""

import pathlib
import shutil

import journey
from desktop import shown, until

MISSING = "Qt.labs.qmlmodels"
MESSAGE = f"Pelko cannot start. It needs the QML module {MISSING}, which is not installed."


def installed(what):
    return shown("qmake6", "-query", f"QT_INSTALL_{what}").strip()


def link_all_but(source, target, left_out):
    """Fills `target` with links to all that is in `source`, except for one folder below it."""
    target.mkdir()
    for entry in source.iterdir():
        if entry == left_out:
            continue
        if entry in left_out.parents:
            link_all_but(entry, target / entry.name, left_out)
        else:
            (target / entry.name).symlink_to(entry)


def copy_without_module(program, folder):
    """A copy of the program that looks for QML modules in a folder of its own, where one is missing."""
    modules = pathlib.Path(installed("QML"))
    link_all_but(modules, folder / "qml", modules.joinpath(*MISSING.split(".")))
    for name in (program.name, "pelko-window"):
        shutil.copy2(program.with_name(name), folder / name)
    plugins = installed("PLUGINS")
    (folder / "qt.conf").write_text(f"[Paths]\nPrefix=/\nPlugins={plugins}\nQmlImports={folder}/qml\n")
    return str(folder / program.name)


def missing_module(pelko):
    folder = pelko.data_home / "copy"
    folder.mkdir(parents=True)
    pelko.program = copy_without_module(pathlib.Path(pelko.program).resolve(), folder)
    pelko.launch()
    until(lambda: pelko.errors.exists() and MESSAGE in pelko.errors.read_text(), "the module is named")
    until(lambda: len(set(journey.shown_pixels())) > 2, "the window shows a text")
    until(pelko.has_focus, "the window has the focus")
    assert shown("xdotool", "getwindowname", pelko.window()).strip() == "Pelko"
    pelko.keys("Escape")
    code = pelko.process.wait(timeout=30)
    assert code == 1, f"ended with {code}"
    assert pelko.errors.read_text().splitlines() == [MESSAGE], pelko.errors.read_text()
    pelko.errors.unlink()


journey.run(missing_module)
