#include "Navigation/NavigationViewModel.h"

#include "Services/Clock.h"
#include "Store/AppState.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace
{
constexpr qsizetype shownHits = 100; // more would not help: another word narrows the search

QString hitsInWords(qsizetype hits)
{
    if (hits == 0)
        return QCoreApplication::translate("NavigationViewModel", "No hits in any space");
    if (hits > shownHits)
        return QCoreApplication::translate("NavigationViewModel", "The best %1 of %n hit(s), all spaces",
                                           nullptr, int(hits))
            .arg(shownHits);
    return QCoreApplication::translate("NavigationViewModel", "%n hit(s), all spaces", nullptr, int(hits));
}

/// As numbers in words need it: a sentence for each, with the space as %1.
QString placesInWords(qsizetype left)
{
    static constexpr std::array sentences{
        QT_TRANSLATE_NOOP("NavigationViewModel", "no places left in %1"),
        QT_TRANSLATE_NOOP("NavigationViewModel", "one place left in %1"),
        QT_TRANSLATE_NOOP("NavigationViewModel", "two places left in %1"),
        QT_TRANSLATE_NOOP("NavigationViewModel", "three places left in %1"),
        QT_TRANSLATE_NOOP("NavigationViewModel", "four places left in %1"),
        QT_TRANSLATE_NOOP("NavigationViewModel", "five places left in %1"),
    };
    static_assert(sentences.size() == AppState::documentLimit + 1);
    return QCoreApplication::translate("NavigationViewModel", sentences.at(std::size_t(left)));
}
} // namespace

NavigationViewModel::NavigationViewModel(AppState &appState, const Clock &clock, QObject *parent)
    : QObject(parent)
    , m_appState(appState)
    , m_clock(clock)
{
    connect(&m_appState, &AppState::showNavChanged, this, &NavigationViewModel::begin);
    connect(&m_appState, &AppState::documentsChanged, this, &NavigationViewModel::refresh);
    connect(&m_appState, &AppState::openDocumentIDChanged, this, &NavigationViewModel::refresh);
    connect(&m_appState, &AppState::currentSpaceChanged, this, &NavigationViewModel::begin);
}

QString NavigationViewModel::summary() const
{
    if (isSearching())
        return hitsInWords(m_hits);
    //: %1 is the name of a space.
    return pageCount() == 0 ? tr("No pages in %1 yet").arg(displayName(m_appState.currentSpace()))
                            : QString();
}

QString NavigationViewModel::placesLeft() const
{
    const Space space = m_appState.currentSpace();
    const qsizetype left = std::max<qsizetype>(0, AppState::documentLimit - pagesIn(space));
    return placesInWords(left).arg(displayName(space));
}

QString NavigationViewModel::chosenPage() const
{
    const bool isPage = m_chosenRow >= 0 && m_chosenRow < pageCount();
    return isPage ? m_pages.rows().at(m_chosenRow).page.id.toString(QUuid::WithoutBraces) : QString();
}

QString NavigationViewModel::chosenDescription() const
{
    if (m_chosenRow < 0)
        return summary();
    if (m_chosenRow == pageCount())
        //: %1 is how many places are left, such as "two places left in Work".
        return tr("New Document, %1").arg(placesLeft());
    return m_pages.data(m_pages.index(m_chosenRow), PageListModel::DescriptionRole).toString();
}

void NavigationViewModel::search(const QString &query)
{
    if (m_query == query)
        return;
    const bool wasSearching = isSearching();
    m_query = query;
    m_chosenRow = -1;
    Q_EMIT queryChanged();
    if (isSearching() == wasSearching)
        m_pages.publish(rows());
    else
        m_pages.replace(rows());
    Q_EMIT pagesChanged();
    choose(isSearching() ? 0 : rowOf(m_appState.openDocumentID()));
}

void NavigationViewModel::choose(int row)
{
    const int chosen = std::min(std::max(row, 0), lastRow());
    m_chosenRow = chosen;
    Q_EMIT chosenRowChanged(); // also if the row now has another page
}

void NavigationViewModel::moveChoice(int rows)
{
    choose(m_chosenRow + rows);
}

void NavigationViewModel::openChosen()
{
    const QString page = chosenPage();
    if (!page.isEmpty())
        open(page);
    else if (m_chosenRow >= 0)
        createDocument();
}

void NavigationViewModel::open(const QString &pageID)
{
    m_appState.showDocument(QUuid(pageID));
    m_appState.setShowNav(false);
}

void NavigationViewModel::createDocument()
{
    m_appState.createDocument(m_appState.currentSpace());
    if (!m_appState.showDocLimitNudge())
        m_appState.setShowNav(false);
}

void NavigationViewModel::switchSpace(const QString &space)
{
    if (const std::optional<Space> known = spaceFromRawValue(space))
        m_appState.switchSpace(*known);
}

void NavigationViewModel::begin()
{
    if (!m_appState.showNav())
        return;
    m_query.clear();
    m_spaces.publish(spaceTabs());
    m_pages.begin(rows(), m_clock.now(), m_clock.timeZone());
    m_chosenRow = -1;
    Q_EMIT queryChanged();
    Q_EMIT pagesChanged();
    choose(rowOf(m_appState.openDocumentID()));
}

void NavigationViewModel::refresh()
{
    if (!m_appState.showNav())
        return;
    const QUuid chosen(chosenPage());
    const int row = m_chosenRow;
    const bool isNewPage = row == pageCount();
    m_spaces.publish(spaceTabs());
    m_pages.publish(rows());
    Q_EMIT pagesChanged();
    const int stays = rowOf(chosen);
    const int inItsPlace = std::min(row, std::max(0, pageCount() - 1));
    choose(isNewPage ? pageCount() : stays < 0 ? inItsPlace : stays);
}

QList<PageRow> NavigationViewModel::rows()
{
    if (isSearching())
        return foundRows();
    QList<PelkoDocument> pages = m_appState.currentSpaceDocuments();
    QList<PageRow> rows;
    rows.reserve(pages.size());
    for (PelkoDocument &page : pages) {
        PageRow &row = rows.emplaceBack();
        row.isOpen = page.id == m_appState.openDocumentID();
        row.page = std::move(page);
    }
    return rows;
}

QList<PageRow> NavigationViewModel::foundRows()
{
    const SearchWords words(m_query);
    const PageHits hits = findPages(m_appState.documents(), words, shownHits);
    m_hits = hits.total;
    QList<PageRow> rows;
    for (const PageHit &hit : hits.best) {
        rows.append(hitRow(m_appState.documents().at(hit.page), hit, words));
        rows.last().isOpen = rows.last().page.id == m_appState.openDocumentID();
    }
    return rows;
}

QList<SpaceTab> NavigationViewModel::spaceTabs() const
{
    QList<SpaceTab> tabs;
    for (const Space space : allSpaces)
        tabs.append({space, pagesIn(space), space == m_appState.currentSpace()});
    return tabs;
}

qsizetype NavigationViewModel::pagesIn(Space space) const
{
    return std::ranges::count(m_appState.documents(), space, &PelkoDocument::space);
}

int NavigationViewModel::rowOf(const std::optional<QUuid> &id) const
{
    const QList<PageRow> &rows = m_pages.rows();
    const auto found = std::ranges::find_if(rows, [&id](const PageRow &row) { return row.page.id == id; });
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}
