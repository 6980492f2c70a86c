#include "Tasks/LibrarySummary.h"

#include <algorithm>
#include <span>

namespace
{
using Page = LibrarySummary::Page;

bool isStillSo(const Page &page, const PelkoDocument &doc)
{
    return isUnchanged(doc, page.doc);
}

bool readsTheSame(const Page &one, const Page &other)
{
    return one.doc.id == other.doc.id &&
           std::ranges::equal(one.todos, other.todos,
                              [](const Task &left, const Task &right) {
                                  return left.block.id == right.block.id && left.todo == right.todo;
                              }) &&
           (one.todos.isEmpty() || one.doc.title() == other.doc.title());
}

bool hasTasks(std::span<const Page> pages)
{
    return std::ranges::any_of(pages, [](const Page &page) { return !page.todos.isEmpty(); });
}

qint64 wordsIn(std::span<const Block> blocks)
{
    qint64 words = 0;
    for (const Block &block : blocks)
        words += block.wordCount();
    return words;
}

/// Returns the word count of the page. Reads only the blocks whose text differs from the last reading.
qint64 wordsIn(const PelkoDocument &doc, const Page &before)
{
    const auto sharesText = [](const Block &one, const Block &other) {
        return one.content.constData() == other.content.constData() &&
               one.content.size() == other.content.size();
    };
    std::span<const Block> now(doc.blocks);
    std::span<const Block> then(before.doc.blocks);
    const auto [nowFrom, thenFrom] = std::ranges::mismatch(now, then, sharesText);
    now = now.subspan(std::size_t(nowFrom - now.begin()));
    then = then.subspan(std::size_t(thenFrom - then.begin()));
    while (!now.empty() && !then.empty() && sharesText(now.back(), then.back())) {
        now = now.first(now.size() - 1);
        then = then.first(then.size() - 1);
    }
    return before.words - wordsIn(then) + wordsIn(now);
}

std::vector<Page> readPages(std::span<const PelkoDocument> documents, const Page *before)
{
    std::vector<Page> pages;
    pages.reserve(documents.size());
    for (const PelkoDocument &doc : documents) {
        const qint64 words = before && before->doc.id == doc.id ? wordsIn(doc, *before) : doc.wordCount();
        pages.push_back({.doc = doc, .todos = tasksOf(doc).todos, .words = words});
    }
    return pages;
}
} // namespace

bool LibrarySummary::read(const QList<PelkoDocument> &documents, std::optional<qsizetype> replacedRow)
{
    const bool sameSize = std::ssize(m_pages) == documents.size();
    if (replacedRow && sameSize) {
        const auto page = m_pages.begin() + *replacedRow;
        return readStretch(page, page + 1, Documents(documents).subspan(std::size_t(*replacedRow), 1));
    }
    const auto [firstPage, firstDoc] = std::ranges::mismatch(m_pages, documents, isStillSo);
    auto lastPage = m_pages.end();
    auto lastDoc = documents.end();
    while (lastPage != firstPage && lastDoc != firstDoc && isStillSo(*(lastPage - 1), *(lastDoc - 1))) {
        --lastPage;
        --lastDoc;
    }
    return readStretch(firstPage, lastPage, Documents(firstDoc, lastDoc));
}

bool LibrarySummary::readStretch(Pages::iterator firstPage, Pages::iterator lastPage, Documents documents)
{
    const bool isOnePage = lastPage - firstPage == 1 && documents.size() == 1;
    Pages pages = readPages(documents, isOnePage ? &*firstPage : nullptr);
    const bool tasksDiffer = isOnePage ? !readsTheSame(*firstPage, pages.front())
                                       : hasTasks(pages) || hasTasks(std::span(firstPage, lastPage));
    m_lastRow = std::size_t(firstPage - m_pages.begin());
    replace(firstPage, lastPage, std::move(pages));
    return tasksDiffer;
}

void LibrarySummary::replace(Pages::iterator first, Pages::iterator last, Pages pages)
{
    for (auto page = first; page != last; ++page)
        m_words -= page->words;
    for (const Page &page : pages)
        m_words += page.words;
    const auto kept = std::min(last - first, std::ssize(pages));
    std::ranges::move(pages.begin(), pages.begin() + kept, first);
    const auto place = m_pages.erase(first + kept, last);
    m_pages.insert(place, std::make_move_iterator(pages.begin() + kept),
                   std::make_move_iterator(pages.end()));
}

QList<TaskGroup> LibrarySummary::todosByDoc() const
{
    QList<TaskGroup> groups;
    for (const Page &page : m_pages) {
        if (!page.todos.isEmpty())
            groups.append({.doc = page.doc, .todos = page.todos});
    }
    return groups;
}

qint64 LibrarySummary::pendingCount() const
{
    return ::pendingCount(todosByDoc());
}

const LibrarySummary::Page *LibrarySummary::page(const QUuid &docID) const
{
    if (m_lastRow < m_pages.size() && m_pages[m_lastRow].doc.id == docID)
        return &m_pages[m_lastRow];
    const auto found = std::ranges::find(m_pages, docID, [](const Page &page) { return page.doc.id; });
    return found == m_pages.end() ? nullptr : &*found;
}
