#include "Shell/FolderEntryModel.h"

#include <algorithm>

void FolderEntryModel::setEntries(QList<PictureFolders::Entry> entries)
{
    // Not as a reset; see IdListModel::replaceAll.
    if (!m_entries.isEmpty()) {
        beginRemoveRows({}, 0, rowCount() - 1);
        m_entries.clear();
        endRemoveRows();
    }
    if (entries.isEmpty())
        return;
    beginInsertRows({}, 0, static_cast<int>(entries.size()) - 1);
    m_entries = std::move(entries);
    endInsertRows();
}

int FolderEntryModel::rowStartingWith(const QString &text, int from) const
{
    for (qsizetype step = 0; step < m_entries.size(); ++step) {
        const qsizetype row = (std::max(from, 0) + step) % m_entries.size();
        if (m_entries.at(row).name().startsWith(text, Qt::CaseInsensitive))
            return static_cast<int>(row);
    }
    return -1;
}

int FolderEntryModel::rowOf(const std::filesystem::path &path) const
{
    const auto found = std::ranges::find(m_entries, path, &PictureFolders::Entry::path);
    return found == m_entries.end() ? -1 : static_cast<int>(found - m_entries.begin());
}

int FolderEntryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
}

QVariant FolderEntryModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const PictureFolders::Entry &entry = m_entries.at(index.row());
    switch (role) {
    case NameRole:
        return entry.name();
    case IsFolderRole:
        return entry.isFolder;
    default:
        return {};
    }
}

QHash<int, QByteArray> FolderEntryModel::roleNames() const
{
    return {{NameRole, "name"}, {IsFolderRole, "isFolder"}};
}
