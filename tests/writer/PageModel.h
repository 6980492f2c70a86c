#pragma once

#include "writer/PlainPage.h"

/// A place in the text of a block, or of an entry of its checklist; on a block without text 0 stands before
/// it and 1 behind it.
struct Spot {
    int block = 0;
    int entry = -1;
    int offset = 0;

    bool operator==(const Spot &) const = default;
    bool isInFieldOf(const Spot &other) const { return block == other.block && entry == other.entry; }
};

/// What is selected; where both are one place, the caret.
struct Marked {
    Spot anchor;
    Spot head;

    bool operator==(const Marked &) const = default;
};

/// The rules of writing on a page, a second time and by plainer means than the editor's: what keys make of
/// a page. It knows nothing of lines on a screen, so the caret is told where it stands after every key that
/// only moves it.
class PageModel
{
public:
    /// A page on the way: `isTyping` where undo may take the change back together with its neighbours.
    struct Stage {
        PlainPage page;
        bool isTyping;
    };

    /// Without `marked`, nothing on the page has the caret.
    PageModel(PlainPage page, const std::optional<Marked> &marked);

    const PlainPage &page() const { return m_page; }
    /// The pages passed through since the model was made.
    const QList<Stage> &stages() const { return m_stages; }
    /// Where the caret has to be after the last change; absent where no rule says so.
    const std::optional<Marked> &marked() const { return m_marked; }

    void type(const QString &character) { insert(character, true); }
    void paste(const QString &text);
    void returnKey(bool withShift);
    void backspace();
    void deleteKey();
    /// Takes what is selected away.
    void cut();
    /// The text of the selection, or nothing where there is none.
    std::optional<QString> selectedText() const;
    bool isCrossing() const;
    /// Takes a piece out of the text that the caret stands in.
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
    /// Ctrl+X on a block without text, which leaves a line to write on.
    void cutWhole(int block);

    /// The text that can be written in at that place; null where there is none.
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
    /// Of typing, undo first brings the typed characters back.
    void convert(Spot field, const QString &value, BlockType kind, bool isTyping);
    void splitBlock(Spot field, const QString &value, int caret);
    void breakUpEntry(Spot field, const QString &value, int caret);
    void removeRange(Spot from, int start, int end, bool isTyping);
    void joinBackwards(Spot at);
    void entryBackwards(Spot at);
    void joinForwards(Spot at);
    void becomeBody(int block, const QString &text);
    /// The caret that a change elsewhere leaves alone. A selection over several texts ends with it, and may
    /// end at either side.
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
