#include "Platform/OrderlyShutdown.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSessionManager>

#include <cstdio>

using namespace Qt::StringLiterals;

OrderlyShutdown::OrderlyShutdown(Callbacks callbacks, QObject *parent)
    : QObject(parent)
    , m_callbacks(std::move(callbacks))
{
    qGuiApp->installEventFilter(this); // an application's event filter receives the events of all objects
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &OrderlyShutdown::endSession,
            Qt::DirectConnection);
}

void OrderlyShutdown::guard(QWindow &window)
{
    m_window = &window;
}

bool OrderlyShutdown::eventFilter(QObject *watched, QEvent *event)
{
    const bool quits = event->type() == QEvent::Quit && watched == qGuiApp;
    const bool closes = event->type() == QEvent::Close && watched == m_window;
    if (quits ? mayEnd() : !closes || mayClose())
        return false;
    event->ignore();
    return true;
}

bool OrderlyShutdown::mayClose()
{
    if (m_callbacks.endsWithWindow())
        return mayEnd();
    m_callbacks.save();
    return true;
}

bool OrderlyShutdown::mayEnd()
{
    if (m_callbacks.mayEnd())
        return true;
    Q_EMIT refused();
    return false;
}

/// Ends without a question: the sender of a signal cannot answer it.
void OrderlyShutdown::endBySignal()
{
    const QString failure = m_callbacks.save();
    if (!failure.isEmpty())
        std::fputs(u"pelko: %1\n"_s.arg(failure).toLocal8Bit().constData(), stderr);
    QCoreApplication::exit(failure.isEmpty() ? 0 : 1);
}

void OrderlyShutdown::endSession(QSessionManager &session)
{
    if (m_callbacks.save().isEmpty() || !session.allowsInteraction())
        return;
    if (!mayEnd())
        session.cancel();
    session.release();
}
