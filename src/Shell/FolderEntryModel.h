#pragma once

#include "Services/PictureFolders.h"

#include <QAbstractListModel>

/// The entries of the folder in the file chooser.
class FolderEntryModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { NameRole = Qt::UserRole, IsFolderRole };

    using QAbstractListModel::QAbstractListModel;

    const QList<PictureFolders::Entry> &entries() const { return m_entries; }
    void setEntries(QList<PictureFolders::Entry> entries);

    /// Returns the first row at or after `from`, cyclically, whose name starts with `text`, ignoring case; or
    /// -1.
    int rowStartingWith(const QString &text, int from) const;
    /// Returns the row of the path, or -1.
    int rowOf(const std::filesystem::path &path) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    QList<PictureFolders::Entry> m_entries;
};
