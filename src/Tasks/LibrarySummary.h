#pragma once

#include "Tasks/TaskGroups.h"

#include <span>
#include <vector>

/// What the panel tells of the whole library, always the same as if it were gathered afresh: the tasks by
/// document and the words. It keeps what it has read, so that one key in a library of ten thousand pages
/// costs the reading of one block.
class LibrarySummary
{
public:
    /// One page with what is told of it.
    struct Page {
        PelkoDocument doc;
        QList<Task> todos;
        qint64 words = 0;
    };

    /// Brings the summary up to date. Tells whether a list of the tasks reads differently now. Where it is
    /// known that the document of one row alone differs since the last reading, nothing else is looked at.
    bool read(const QList<PelkoDocument> &documents, std::optional<qsizetype> replacedRow = {});

    /// As the function of that name gives it, each document as it was at the last reading.
    QList<TaskGroup> todosByDoc() const;
    qint64 pendingCount() const;
    /// Of all pages.
    qint64 wordCount() const { return m_words; }
    /// Null for a document that is not in the library. Valid until the next reading.
    const Page *page(const QUuid &docID) const;

private:
    using Pages = std::vector<Page>;
    using Documents = std::span<const PelkoDocument>;

    bool readStretch(Pages::iterator firstPage, Pages::iterator lastPage, Documents documents);
    void replace(Pages::iterator first, Pages::iterator last, Pages pages);

    Pages m_pages;
    qint64 m_words = 0;
    /// Where to look for a page first.
    std::size_t m_lastRow = 0;
};
