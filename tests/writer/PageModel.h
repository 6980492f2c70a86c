#pragma once

#include "writer/PlainPage.h"

/// A position in the text of a block or of an entry; in a block without text, 0 is before it and 1 behind it.
struct Spot {
    int block = 0;
    int entry = -1;
    int offset = 0;

    bool operator==(const Spot &) const = default;
    bool isInFieldOf(const Spot &other) const { return block == other.block && entry == other.entry; }
};

/// A selection; an empty one is the caret.
struct Marked {
    Spot anchor;
    Spot head;

    bool operator==(const Marked &) const = default;
};

/// A second, simpler implementation of the rules of writing: what keys do to a page. It knows no layout, so
/// the caret is set from outside after keys that only move it.
class PageModel
{
public:
    /// A state of the page; `isTyping` if undo may join the change with its neighbours.
    struct Stage {
        PlainPage page;
        bool isTyping;
    };

    /// Without `marked`, the caret is not on the page.
    PageModel(PlainPage page, const std::optional<Marked> &marked);

    const PlainPage &page() const { return m_page; }
    /// The states since the model was created.
    const QList<Stage> &stages() const { return m_stages; }
    /// The expected selection after the last change; std::nullopt if no rule defines it.
    const std::optional<Marked> &marked() const { return m_marked; }

    void type(const QString &character) { insert(character, true); }
    void paste(const QString &text);
    void returnKey(bool withShift);
    void backspace();
    void deleteKey();
    /// Removes the selection.
    void cut();
    /// Returns the text of the selection, or std::nullopt.
    std::optional<QString> selectedText() const;
    bool isCrossing() const;
    /// Removes a range of the text that contains the caret.
    void remove(int start, int end) { removeRange(m_marked->head, start, end, false); }

    void addBlock(BlockType kind);
    void deleteBlock(int block);
    void moveBlock(int from, int to);
    void toggleBanner(int block);
    void addEntry(int block);
    void toggleEntry(int block, int entry);
    void removeEntry(int block, int entry);
    void insertPicture(int behind, const QByteArray &mark);
    void setPicture(int block, const QByteArray &mark);
    void quickAdd(const QString &text);
    /// Backspace or Delete on a block without text.
    void removeWhole(int block);
    /// Ctrl+X on a block without text, which leaves an empty body block.
    void cutWhole(int block);

    /// Returns the editable text at the position, or nullptr.
    const QString *textAt(const Spot &spot) const;
    bool opensWithBanner() const;

private:
    struct Part {
        Spot place; // without offset
        int start;
        int end;
        bool hasText;
    };

    QString *editableText(const Spot &spot);
    /// Of a selection within one text.
    std::pair<int, int> range() const;
    QList<Spot> places() const;
    QList<Part> parts() const;
    bool isWhole(const QList<Part> &parts, int block) const;
    void insert(const QString &text, bool isTyping);
    void writeAtEnd(const QString &text, bool isTyping);
    void replaceMarked(const QString &text);
    Spot removeMarked();
    void report(Spot field, const QString &value, int caret, bool isTyping);
    void reportText(Spot field, const QString &value, int caret, bool isTyping);
    /// If it was typed, undo first restores the typed characters.
    void convert(Spot field, const QString &value, BlockType kind, bool isTyping);
    void splitBlock(Spot field, const QString &value, int caret);
    void breakUpEntry(Spot field, const QString &value, int caret);
    void removeRange(Spot from, int start, int end, bool isTyping);
    void joinBackwards(Spot at);
    void entryBackwards(Spot at);
    void joinForwards(Spot at);
    void becomeBody(int block, const QString &text);
    /// The caret after a change made elsewhere. A selection over several texts is cleared, with the caret at
    /// either end.
    std::optional<Spot> lastingCaret() const;
    Spot edgeOf(int block, bool start) const;
    bool takesText(int block) const;
    bool hasEntries(int block) const;
    Spot append(int block, const QString &text);
    QString takeFirstText(int block);
    void settle(const std::optional<Spot> &caret, bool isTyping = false);

    PlainPage m_page;
    std::optional<Marked> m_marked;
    QList<Stage> m_stages;
};
