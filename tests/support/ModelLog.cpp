#include "support/ModelLog.h"

using namespace Qt::StringLiterals;

namespace
{

QString range(QChar sign, int first, int last)
{
    return u"%1%2..%3"_s.arg(sign).arg(first).arg(last);
}

/// The destination of a move is counted before the row is removed.
QString move(int row, int destination)
{
    return u"%1>%2"_s.arg(row).arg(destination > row ? destination - 1 : destination);
}

QString change(const QAbstractItemModel &model, int first, int last, const QList<int> &roles)
{
    QStringList names;
    for (const int role : roles)
        names << QString::fromLatin1(model.roleNames().value(role));
    names.sort();
    const QString rows = first == last ? QString::number(first) : u"%1..%2"_s.arg(first).arg(last);
    return rows + u": "_s + names.join(u' ');
}

} // namespace

ModelLog::ModelLog(const QAbstractItemModel &model)
{
    using Model = QAbstractItemModel;
    connect(&model, &Model::rowsInserted, this,
            [this](const QModelIndex &, int first, int last) { m_entries << range(u'+', first, last); });
    connect(&model, &Model::rowsRemoved, this,
            [this](const QModelIndex &, int first, int last) { m_entries << range(u'-', first, last); });
    connect(&model, &Model::rowsMoved, this,
            [this](const QModelIndex &, int first, int, const QModelIndex &, int destination) {
                m_entries << move(first, destination);
            });
    connect(&model, &Model::dataChanged, this,
            [this, &model](const QModelIndex &first, const QModelIndex &last, const QList<int> &roles) {
                m_entries << change(model, first.row(), last.row(), roles);
            });
    connect(&model, &Model::modelReset, this, [this] { m_entries << u"reset"_s; });
}
