#pragma once

#include "Services/PictureFolders.h"

#include <QAbstractListModel>

/// The entries of the folder that the file chooser shows.
class FolderEntryModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { NameRole = Qt::UserRole, IsFolderRole };

    using QAbstractListModel::QAbstractListModel;

    const QList<PictureFolders::Entry> &entries() const { return m_entries; }
    void setEntries(QList<PictureFolders::Entry> entries);

    /// The first row at or after `from`, going round, whose name begins so, whatever its case; or -1.
    int rowStartingWith(const QString &text, int from) const;
    /// The row of that path, or -1.
    int rowOf(const std::filesystem::path &path) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    QList<PictureFolders::Entry> m_entries;
};
