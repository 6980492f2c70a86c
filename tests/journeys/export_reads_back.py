"""Exports pages full of marks, reads them back with another program, and finds the same words.

Needs no desktop: the argument is the program.
"""

import base64
import os
import pathlib
import random
import subprocess
import sys
import tempfile
import uuid

import library
import markdown

PIECES = [*"*_`[]()<>&!#+-=~|:.\\\"'^$@{}/,;?%12ab \n\t\u00a0\u3000é語🚀\u2028\x0b\x0c\r"] + [
    "**", "__", "```", "~~~", "---", "===", "> ", "# ", "- ", "1. ", "2) ", "    ", "&amp;", "&#65;", "<b>", "<!--",
    "http://a.example/_x_", "<http://a.example>", "[a](b)", "![a](b)", "[a]: b", "[a]", "\n\n", "  \n", "\\\n", "| - |",
    "word", " and ", "snake_case", "2 * 3", "👩‍🚀",
]
KINDS = ["textLarge", "textSmall", "quote", "code"]


def block(kind, content="", **more):
    return {"id": str(uuid.uuid4()), "type": kind, "content": content, **more}


def checklist(texts):
    todos = [{"id": str(uuid.uuid4()), "text": text, "done": index % 2 == 0} for index, text in enumerate(texts)]
    return block("sticky", todos=todos)


def page(blocks, space="work", created=0.0, **more):
    return {"id": str(uuid.uuid4()).upper(), "space": space, "createdAt": created, "blocks": blocks, **more}


def random_texts(chance, count):
    return ["".join(chance.choices(PIECES, k=chance.randint(1, 12))) for _ in range(count)]


def random_pages(seed, count):
    chance = random.Random(seed)
    pages = []
    for number in range(count):
        blocks = [block(chance.choice(KINDS), text) for text in random_texts(chance, 40)]
        blocks += [checklist(random_texts(chance, 5)) for _ in range(3)] + [block("divider")]
        chance.shuffle(blocks)
        pages.append(page(blocks, chance.choice(["ideas", "work", "journal"]), number * 1000.5))
    return pages


def pictured_page():
    picture = base64.b64decode(library.TINY_PICTURE)
    banner = block("image", imageData=library.TINY_PICTURE, isFullWidth=True, bannerTitle="A *ridge*\nat dawn")
    return page([banner, block("image", imageData=library.TINY_PICTURE), block("image")]), picture


def as_read(blocks, pictures=None):
    """The blocks as the page shows them; in code a reader knows one kind of line break only."""
    found = []
    for kind, what in markdown.shown(blocks):
        if kind == "code":
            what = what.replace("\r\n", "\n").replace("\r", "\n")
        elif kind == "image":
            what = base64.b64decode(what)
        found.append((kind, what))
    return found


def export(program, pages, folder):
    data = folder / "data" / "Pelko" / "data.json"
    data.parent.mkdir(parents=True)
    data.write_text(library.as_text(pages), encoding="utf-8")
    environment = {**os.environ, "XDG_DATA_HOME": str(folder / "data")}
    target = folder / "notes"
    done = subprocess.run([program, "--export", target], env=environment, capture_output=True, text=True, timeout=60)
    assert (done.returncode, done.stderr) == (0, ""), done
    return target


def compare(pages, target):
    exported = {read.id: read for read in markdown.pages_in(target)}
    assert len(exported) == len(pages), f"{len(exported)} of {len(pages)} pages"
    for written in pages:
        read = exported[written["id"].upper()]
        assert read.path.parent.name == written["space"] == read.front["space"]
        assert abs(read.seconds("created") - written["createdAt"]) < 0.001
        for there, expected in zip(read.blocks(), as_read(written["blocks"]), strict=True):
            assert there == expected, f"{read.path}: read\n{there!r}, written\n{expected!r}"


def check_names(target):
    """No two that a file system could take for one, none that one could refuse."""
    paths = [str(path.relative_to(target)) for path in target.rglob("*")]
    assert len({path.casefold() for path in paths}) == len(paths)
    for path in target.rglob("*"):
        assert len(path.name.encode()) < 140 and path.name == path.name.strip(" .-"), path
        assert not set(path.name) & set('<>:"/\\|?*\n\r\t\x0b\x0c\u2028'), path


def main(program):
    seed = int(os.environ.get("PELKO_SEED", "20261121"))
    illustrated, picture = pictured_page()
    pages = [*random_pages(seed, int(os.environ.get("PELKO_PAGES", "60"))), illustrated, page([])]
    with tempfile.TemporaryDirectory(prefix="pelko-export-") as folder:
        target = export(program, pages, pathlib.Path(folder))
        compare(pages, target)
        check_names(target)
        assert [path.read_bytes() for path in target.rglob("*.png")] == [picture, picture]


main(sys.argv[1])
