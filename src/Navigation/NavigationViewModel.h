#pragma once

#include "Navigation/PageListModel.h"
#include "Navigation/SpaceListModel.h"

#include <QObject>

class AppState;
class Clock;

/// The view model of the navigation overlay: the three spaces, the pages of the current one, and a search
/// over all of them. One row is selected with the arrow keys; the row behind the last page creates a new one.
/// While the overlay is closed nothing is updated; each opening resets it.
class NavigationViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString query READ query NOTIFY queryChanged)
    Q_PROPERTY(bool isSearching READ isSearching NOTIFY queryChanged)
    Q_PROPERTY(QString summary READ summary NOTIFY pagesChanged)
    Q_PROPERTY(QString placesLeft READ placesLeft NOTIFY pagesChanged)
    Q_PROPERTY(QObject *pages READ pages CONSTANT)
    Q_PROPERTY(QObject *spaces READ spaces CONSTANT)
    Q_PROPERTY(int pageCount READ pageCount NOTIFY pagesChanged)
    Q_PROPERTY(int chosenRow READ chosenRow NOTIFY chosenRowChanged)
    Q_PROPERTY(QString chosenDescription READ chosenDescription NOTIFY chosenRowChanged)

public:
    NavigationViewModel(AppState &appState, const Clock &clock, QObject *parent = nullptr);

    QString query() const { return m_query; }
    bool isSearching() const { return !m_query.trimmed().isEmpty(); }
    /// The number of search results, or that the space is empty; otherwise an empty text.
    QString summary() const;
    /// The number of free places in the space, shown beside the row that creates a page.
    QString placesLeft() const;
    QObject *pages() { return &m_pages; }
    QObject *spaces() { return &m_spaces; }
    int pageCount() const { return m_pages.rowCount(); }
    /// The selected row: `pageCount` for the row that creates a page, which search results do not have; -1 if
    /// there are no rows.
    int chosenRow() const { return m_chosenRow; }
    /// The id of the selected page; empty if none is selected.
    Q_INVOKABLE QString chosenPage() const;
    /// The text of the selected row on one line, for assistive technology.
    QString chosenDescription() const;

    /// Shows the pages that contain all words of `query`, or those of the space if it has no words.
    Q_INVOKABLE void search(const QString &query);
    /// Selects a row; numbers beyond either end select the first or last row.
    Q_INVOKABLE void choose(int row);
    /// Moves the selection down by `rows`, or up if it is negative.
    Q_INVOKABLE void moveChoice(int rows);
    /// Opens the selected page or creates a new one.
    Q_INVOKABLE void openChosen();
    /// Opens a page of any space and closes the navigation.
    Q_INVOKABLE void open(const QString &pageID);
    /// Creates a page in the current space and closes the navigation, or shows the limit alert if the space
    /// is full.
    Q_INVOKABLE void createDocument();
    /// Shows the space with this raw name.
    Q_INVOKABLE void switchSpace(const QString &space);

Q_SIGNALS:
    void queryChanged();
    /// The list has other pages, or changed ones.
    void pagesChanged();
    void chosenRowChanged();

private:
    void begin();
    void refresh();
    QList<PageRow> rows();
    QList<PageRow> foundRows();
    QList<SpaceTab> spaceTabs() const;
    qsizetype pagesIn(Space space) const;
    int rowOf(const std::optional<QUuid> &id) const;
    int lastRow() const { return isSearching() ? pageCount() - 1 : pageCount(); }

    AppState &m_appState;
    const Clock &m_clock;
    QString m_query;
    qsizetype m_hits = 0;
    int m_chosenRow = -1;
    PageListModel m_pages;
    SpaceListModel m_spaces;
};
