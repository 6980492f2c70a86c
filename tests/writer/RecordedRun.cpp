#include "writer/RecordedRun.h"

#include <QFile>

#include <algorithm>

namespace
{

constexpr QByteArrayView startMark = "start ";
constexpr QByteArrayView faultMark = "fault ";

} // namespace

std::optional<RecordedRun> readRun(const QString &file)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly))
        return std::nullopt;
    RecordedRun run;
    bool isFault = false;
    for (const QByteArray &line : input.readAll().split('\n')) {
        if (line.startsWith(startMark))
            run.startPages = QString::fromUtf8(line.sliced(startMark.size()));
        else if (const auto action = isFault ? std::nullopt : actionFrom(line))
            run.actions.append(*action);
        isFault = isFault || line.startsWith(faultMark);
        if (isFault)
            run.fault +=
                QString::fromUtf8(line.startsWith(faultMark) ? line.sliced(faultMark.size()) : line) + u'\n';
    }
    run.fault = run.fault.trimmed();
    return run;
}

void writeRun(const QString &file, const RecordedRun &run)
{
    RunRecorder recorder(file, run.startPages);
    for (const Action &action : run.actions)
        recorder.add(action);
    if (!run.fault.isEmpty())
        recorder.add(run.fault);
}

RunRecorder::RunRecorder(const QString &file, const QString &startPages) : m_file(file)
{
    if (!file.isEmpty())
        QFile::remove(file);
    append(startMark.toByteArray() + startPages.toUtf8());
}

void RunRecorder::add(const Action &action)
{
    append(lineOf(action));
}

void RunRecorder::add(const QString &fault)
{
    append(faultMark.toByteArray() + fault.toUtf8());
}

void RunRecorder::append(const QByteArray &line)
{
    if (m_file.isEmpty())
        return;
    QFile output(m_file);
    if (output.open(QIODevice::WriteOnly | QIODevice::Append))
        output.write(line + '\n');
}

QList<Action> shrink(QList<Action> actions, const std::function<bool(const QList<Action> &)> &fails,
                     int longest)
{
    for (qsizetype length = std::max<qsizetype>(actions.size() / 2, 1); length > 0 && longest > 0;) {
        bool isShorter = false;
        for (qsizetype start = 0; start < actions.size() && longest > 0;) {
            QList<Action> fewer = actions;
            fewer.remove(start, std::min(length, actions.size() - start));
            --longest;
            if (fails(fewer)) {
                actions = fewer;
                isShorter = true;
            } else {
                start += length;
            }
        }
        if (!isShorter || length > 1)
            length = length == 1 ? 0 : std::max<qsizetype>(length / 2, 1);
    }
    return actions;
}
