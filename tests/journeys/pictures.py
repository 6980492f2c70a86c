"""Fills an image block through the file chooser with keys alone, makes the picture a banner, titles it, and back."""

import base64
import pathlib
import struct
import zlib

import journey
import library
from desktop import until
from journey import screen_reader


def png(width, height, colour):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    header = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    rows = (b"\0" + bytes(colour) * width) * height
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b"")


def write_pictures(home):
    folder = home / "Pictures" / "Ridge"
    folder.mkdir(parents=True)
    (folder / "dawn.png").write_bytes(png(400, 200, (224, 115, 56)))
    (folder / "dusk.png").write_bytes(b"no picture at all")
    (folder / "notes.txt").write_text("not to be seen")
    return folder


def picture_blocks(saved):
    return [block for block in library.page(saved)["blocks"] if "imageData" in block]


def fill_by_keys(pelko):
    """The block asks, the chooser answers: letters walk, Return opens."""
    pelko.click(pelko.button("Image"))
    pelko.stand_still()
    pelko.wait_for("Add image", screen_reader().BUTTONS)
    pelko.click(pelko.button("Add image"))
    pelko.wait_for("Files")
    pelko.type("pict")
    pelko.keys("Return")
    pelko.wait_for("Ridge")
    pelko.keys("Return")
    pelko.wait_for("dawn.png")
    assert not pelko.find("notes.txt"), "the chooser shows pictures only"
    pelko.type("da")
    pelko.keys("Return")


def cancel(pelko):
    pelko.click(pelko.button("Add image"))
    pelko.wait_for("Files")
    pelko.keys("Escape")
    pelko.wait_gone("Files")


def pictures(pelko):
    home = pathlib.Path(pelko.errors).parent
    folder = write_pictures(home)
    pelko.write_library(library.as_text())
    pelko.start()
    fill_by_keys(pelko)
    pelko.wait_saved(lambda saved: picture_blocks(saved), "a picture")
    pelko.wait_gone("Files")
    stored = picture_blocks(pelko.saved())[0]["imageData"]
    assert base64.b64decode(stored) == (folder / "dawn.png").read_bytes(), "the bytes are kept as they are"

    pelko.point_at(pelko.wait_for("Image", {screen_reader().Role.IMAGE}))
    pelko.stand_still()
    pelko.click(pelko.button("Banner"))
    pelko.wait_focus_on("Banner title")
    pelko.type("Ridge")
    pelko.wait_saved(lambda saved: library.page(saved)["blocks"][0].get("bannerTitle") == "Ridge", "the title")

    pelko.point_at(pelko.wait_for("Banner", {screen_reader().Role.IMAGE}))
    pelko.stand_still()
    pelko.click(pelko.button("Unbanner"))
    pelko.wait_saved(lambda saved: library.page(saved)["blocks"][0]["type"] == "textLarge", "the heading is back")
    pelko.close()


journey.run(pictures)
