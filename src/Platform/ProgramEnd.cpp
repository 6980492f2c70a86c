#include "Platform/ProgramEnd.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSessionManager>

#include <cstdio>

using namespace Qt::StringLiterals;

ProgramEnd::ProgramEnd(Answers answers, QObject *parent) : QObject(parent), m_answers(std::move(answers))
{
    qGuiApp->installEventFilter(this); // which is shown the events of every object
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &ProgramEnd::endSession,
            Qt::DirectConnection);
}

void ProgramEnd::guard(QWindow &window)
{
    m_window = &window;
}

bool ProgramEnd::eventFilter(QObject *watched, QEvent *event)
{
    const bool quits = event->type() == QEvent::Quit && watched == qGuiApp;
    const bool closes = event->type() == QEvent::Close && watched == m_window;
    if (quits ? mayEnd() : !closes || mayClose())
        return false;
    event->ignore();
    return true;
}

bool ProgramEnd::mayClose()
{
    if (m_answers.endsWithWindow())
        return mayEnd();
    m_answers.save();
    return true;
}

bool ProgramEnd::mayEnd()
{
    if (m_answers.mayEnd())
        return true;
    Q_EMIT refused();
    return false;
}

/// Whoever sends a signal does not wait for an answer.
void ProgramEnd::endBySignal()
{
    const QString failure = m_answers.save();
    if (!failure.isEmpty())
        std::fputs(u"pelko: %1\n"_s.arg(failure).toLocal8Bit().constData(), stderr);
    QCoreApplication::exit(failure.isEmpty() ? 0 : 1);
}

void ProgramEnd::endSession(QSessionManager &session)
{
    if (m_answers.save().isEmpty() || !session.allowsInteraction())
        return;
    if (!mayEnd())
        session.cancel();
    session.release();
}
