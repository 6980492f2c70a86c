"""Exported pages as a reader of CommonMark understands them: the distribution's `cmark` reads, this compares."""

import datetime
import html.parser
import json
import pathlib
import subprocess
import urllib.parse

KINDS = {"h1": "textLarge", "p": "textSmall", "blockquote": "quote", "pre": "code", "ul": "sticky"}
REFERENCE_DATE = datetime.datetime(2001, 1, 1, tzinfo=datetime.timezone.utc)


class Blocks(html.parser.HTMLParser):
    """The blocks of a page as (kind, text) or (kind, [entries]); pictures as ("image", address)."""

    def __init__(self, source):
        super().__init__(convert_charrefs=True)
        self.found = []
        self.kind = None
        self.text = ""
        self.quoted = ""
        # The reader breaks its lines after what breaks a line of the text.
        self.feed(source.replace("<br />\n", "<br />"))
        self.close()

    def handle_starttag(self, tag, attributes):
        if tag == "br":
            self.text += "\n"
        elif tag == "hr":
            self.found.append(("divider", ""))
        elif tag == "img":
            self.found.append(("image", urllib.parse.unquote(dict(attributes)["src"])))
        elif tag == "ul":
            self.found.append(("sticky", []))
        elif tag in KINDS and self.kind is None:
            self.kind = KINDS[tag]
            self.text = ""
        elif tag in ("li", "p"):  # the text begins here, not where the list or the quote does
            self.text = ""
        elif tag != "code":
            raise AssertionError(f"<{tag}> stands for nothing on a page")

    def handle_endtag(self, tag):
        if tag == "li":
            self.found[-1][1].append(self.text)
        elif tag == "p" and self.kind == "quote":
            self.quoted = self.text
        elif KINDS.get(tag) == self.kind and self.kind is not None:
            self.end_block()

    def end_block(self):
        text = self.quoted if self.kind == "quote" else self.text
        if self.kind == "code":
            text = text.removesuffix("\n")
        if self.kind != "textSmall" or text:  # a paragraph of a picture alone
            self.found.append((self.kind, text))
        self.kind = None

    def handle_data(self, data):
        self.text += data


def parse(markdown):
    done = subprocess.run(["cmark"], input=markdown.encode(), capture_output=True, check=True)
    return Blocks(done.stdout.decode()).found


def shown(blocks):
    """The blocks of a data file in the same form, without those that say nothing."""
    found = []
    for block in blocks:
        kind, text = block["type"], block["content"]
        if kind == "divider":
            found.append((kind, ""))
        elif kind == "image":
            if "imageData" in block:
                found.append((kind, block["imageData"]))
            if block.get("isFullWidth") and block.get("bannerTitle"):
                found.append(("textLarge", block["bannerTitle"]))
        elif kind == "sticky":
            entries = [f"[{'x' if todo['done'] else ' '}] {todo['text']}" for todo in block.get("todos") or []]
            # An empty entry ends with its box.
            found += [(kind, [entry if entry != entry[:4] else entry[:3] for entry in entries])] if entries else []
        elif text:
            found.append((kind, text))
    return found


class Page:
    """One exported file: what stands in its front matter, and its Markdown."""

    def __init__(self, path):
        self.path = path
        lines = path.read_bytes().decode()
        assert lines.startswith("---\n"), "front matter comes first"
        front, self.markdown = lines[4:].split("\n---\n", 1)
        self.front = dict(line.split(": ", 1) for line in front.split("\n"))

    @property
    def id(self):
        return self.front["id"]

    @property
    def title(self):
        return json.loads(self.front["title"])

    def seconds(self, key):
        time = datetime.datetime.fromisoformat(self.front[key].replace("Z", "+00:00"))
        return (time - REFERENCE_DATE).total_seconds()

    def blocks(self):
        """With the bytes of the pictures in the place of their addresses."""
        return [
            (kind, (self.path.parent / what).read_bytes() if kind == "image" else what)
            for kind, what in parse(self.markdown)
        ]


def pages_in(folder):
    return [Page(path) for path in sorted(pathlib.Path(folder).rglob("*.md"))]
