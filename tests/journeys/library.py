"""A data file as another program of the same format might have written it, and ways to compare two of them."""

import json

FIRST_PAGE = "6F9619FF-8B86-4D01-B42D-00CF4FC964FF"
TINY_PICTURE = (
    "iVBORw0KGgoAAAANSUhEUgAAAAQAAAAECAIAAAAmkwkpAAAAEElEQVR4nGO4HhKPQCB8AzUAfVUPGn8C4lQAAAAASUVORK5CYII="
)
SCRIPTS = "Grüße · ελληνικά · русский · עברית · العربية · हिन्दी · ไทย · 日本語 · 한국어 · 👩‍🚀🏳️‍🌈 · e\u0301 · a\u00a0b"

# Mixed-case identifiers, keys in no order, an unknown key, a null, absent optionals, fractions down to the microsecond.
LIBRARY = [
    {
        "updatedAt": 816933599.9803693,
        "blocks": [
            {"content": "", "type": "image", "id": "db5b5fab-8f4d-4e27-9da1-494c73cf256d", "imageData": TINY_PICTURE},
            {"type": "textLarge", "content": "A page of the journal", "id": "0A1b2C3d-0000-4000-8000-00000000000A"},
            {"id": "0a1b2c3d-0000-4000-8000-00000000000b", "type": "textSmall", "content": SCRIPTS},
        ],
        "space": "journal",
        "id": "11111111-aaaa-4BBB-8ccc-DDDDDDDDDDDD",
        "createdAt": 797431500.123457,
        "isPinned": False,
        "colour": {"unknown": [1, 2, {"deep": None}]},
    },
    {
        "id": FIRST_PAGE.lower(),
        "space": "work",
        "createdAt": 816000000.25,
        "updatedAt": None,
        "blocks": [
            {"id": "22222222-0000-4000-8000-000000000001", "type": "textLarge", "content": "The first page"},
            {"id": "22222222-0000-4000-8000-000000000002", "type": "textSmall", "content": SCRIPTS},
            {"id": "22222222-0000-4000-8000-000000000003", "type": "textSmall", "content": ""},
        ],
    },
    {
        "id": "33333333-0000-4000-8000-000000000000",
        "space": "ideas",
        "createdAt": -12345.678901,
        "isArchived": True,
        "isPinned": True,
        "blocks": [
            {
                "id": "33333333-0000-4000-8000-000000000001",
                "type": "sticky",
                "content": "",
                "todos": [{"done": True, "text": "tab\there", "id": "33333333-0000-4000-8000-000000000002"}],
            },
            {
                "id": "33333333-0000-4000-8000-000000000003",
                "type": "image",
                "content": "",
                "isFullWidth": False,
                "bannerTitle": "",
                "todos": [],
            },
        ],
    },
]

KEYS = {
    "document": ("id", "space", "blocks", "createdAt", "updatedAt", "isPinned", "isArchived"),
    "block": ("id", "type", "content", "imageData", "todos", "isFullWidth", "bannerTitle"),
    "todo": ("id", "text", "done"),
}


def as_text(documents=None):
    """Compact, with slashes escaped, as the format's writers do it."""
    text = json.dumps(LIBRARY if documents is None else documents, ensure_ascii=False, separators=(",", ":"))
    return text.replace("/", "\\/")


def known(record, kind):
    """A record as it has to be written: known keys that hold something, identifiers in upper case."""
    kept = {key: record[key] for key in KEYS[kind] if record.get(key) is not None}
    kept["id"] = kept["id"].upper()
    return kept


def canonical(documents):
    return [
        {
            **known(document, "document"),
            "blocks": [
                {**known(block, "block"), **todos_of(block)} for block in document["blocks"]
            ],
        }
        for document in documents
    ]


def todos_of(block):
    if block.get("todos") is None:
        return {}
    return {"todos": [known(todo, "todo") for todo in block["todos"]]}


def page(documents, identifier=FIRST_PAGE):
    return next(document for document in documents if document["id"].upper() == identifier)


def outline(document):
    """What a page says, without identifiers: kind, content and checklist entries of each block."""
    return [
        (
            block["type"],
            block["content"],
            *([[(todo["text"], todo["done"]) for todo in block["todos"]]] if "todos" in block else []),
        )
        for block in document["blocks"]
    ]
