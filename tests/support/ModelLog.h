#pragma once

#include <QAbstractItemModel>
#include <QStringList>

/// Writes down what a list model announces: "+2..3" for rows inserted, "-2..3" for rows removed, "0>2" for a
/// row that moved and where it stands now, "1: content kind" for the roles that changed, "reset".
class ModelLog : public QObject
{
public:
    explicit ModelLog(const QAbstractItemModel &model);

    /// What was announced since the last time.
    QStringList take() { return std::exchange(m_entries, {}); }

private:
    QStringList m_entries;
};
