#include "PanelWindow.h"

#include "Timers/PanelPlace.h"
#include "Views/TakeDown.h"

#include <QGuiApplication>
#include <QScreen>

PanelWindow::PanelWindow(QWindow *parent) : QQuickWindow(parent)
{
    setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    connect(this, &QWindow::activeChanged, this, &PanelWindow::followActive);
    connect(this, &QWindow::heightChanged, this, &PanelWindow::place);
}

PanelWindow::~PanelWindow()
{
    takeDown(*this);
}

void PanelWindow::openAt(const QRect &opener)
{
    m_opener = opener;
    // The window system may tell only now that it lost the keyboard when it was closed.
    m_wasActive = false;
    place();
    show();
    raise();
    requestActivate();
}

void PanelWindow::place()
{
    if (m_opener.isNull())
        return;
    if (QScreen *under = QGuiApplication::screenAt(m_opener.center()))
        setScreen(under);
    setPosition(panelPlace(m_opener, size(), screen()->availableGeometry()));
}

void PanelWindow::followActive()
{
    // Before it has had the keyboard it cannot lose it.
    if (m_wasActive && !isActive())
        Q_EMIT dismissed();
    m_wasActive = isActive();
}
