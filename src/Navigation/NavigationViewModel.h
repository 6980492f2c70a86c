#pragma once

#include "Navigation/PageListModel.h"
#include "Navigation/SpaceListModel.h"

#include <QObject>

class AppState;
class Clock;

/// The view model of the navigation overlay: the three spaces, the pages of the current one, and a search
/// over all of them. One row is chosen, by arrow keys; the one behind the last page makes a new one. While
/// the navigation is closed it follows nothing, and with each opening it begins anew.
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
    /// Beside the row that makes a new page.
    QString placesLeft() const;
    QObject *pages() { return &m_pages; }
    QObject *spaces() { return &m_spaces; }
    int pageCount() const { return m_pages.rowCount(); }
    /// `pageCount` for the row that makes a new page, which a search does not have; -1 where there is no row.
    int chosenRow() const { return m_chosenRow; }
    /// Empty where no page is chosen.
    Q_INVOKABLE QString chosenPage() const;
    /// What the chosen row says, in one line for assistive technology.
    QString chosenDescription() const;

    /// Shows the pages on which all the words of `query` stand, or the space where there are none.
    Q_INVOKABLE void search(const QString &query);
    /// Rows beyond either end choose the one at that end.
    Q_INVOKABLE void choose(int row);
    /// So many rows down, or up when negative.
    Q_INVOKABLE void moveChoice(int rows);
    /// Opens the chosen page or makes a new one.
    Q_INVOKABLE void openChosen();
    /// Opens a page, in whatever space it lies, and closes the navigation.
    Q_INVOKABLE void open(const QString &pageID);
    /// Makes a page in the current space and closes the navigation; a full space raises the limit alert.
    Q_INVOKABLE void createDocument();
    /// Shows the space of that raw name and what lies in it.
    Q_INVOKABLE void switchSpace(const QString &space);

Q_SIGNALS:
    void queryChanged();
    /// Other pages, or the same ones changed.
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
