#pragma once

#include "Tasks/TaskGroups.h"

#include <span>
#include <vector>

/// The tasks and word counts of the whole library. It keeps the results of the last reading, so that one key
/// in a library of ten thousand pages costs the reading of one block.
class LibrarySummary
{
public:
    /// The results of reading one page.
    struct Page {
        PelkoDocument doc;
        QList<Task> todos;
        qint64 words = 0;
    };

    /// Updates the summary. Returns whether the lists of tasks have changed. If `replacedRow` is given, only
    /// this document differs since the last reading.
    bool read(const QList<PelkoDocument> &documents, std::optional<qsizetype> replacedRow = {});

    /// Returns the tasks by document, as ::todosByDoc() did for the documents of the last reading.
    QList<TaskGroup> todosByDoc() const;
    qint64 pendingCount() const;
    /// The number of words of all pages.
    qint64 wordCount() const { return m_words; }
    /// Returns nullptr for a document that is not in the library. Valid until the next reading.
    const Page *page(const QUuid &docID) const;

private:
    using Pages = std::vector<Page>;
    using Documents = std::span<const PelkoDocument>;

    bool readStretch(Pages::iterator firstPage, Pages::iterator lastPage, Documents documents);
    void replace(Pages::iterator first, Pages::iterator last, Pages pages);

    Pages m_pages;
    qint64 m_words = 0;
    /// The row where the search for a page begins.
    std::size_t m_lastRow = 0;
};
