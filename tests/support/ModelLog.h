#pragma once

#include <QAbstractItemModel>
#include <QStringList>

/// Records the signals of a list model: "+2..3" for inserted rows, "-2..3" for removed rows, "0>2" for a row
/// moved to row 2, "1: content kind" for changed roles, "reset".
class ModelLog : public QObject
{
public:
    explicit ModelLog(const QAbstractItemModel &model);

    /// Returns and clears the log.
    QStringList take() { return std::exchange(m_entries, {}); }

private:
    QStringList m_entries;
};
