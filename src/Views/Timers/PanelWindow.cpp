#include "PanelWindow.h"

#include "RoundedRegion.h"
#include "Timers/PanelPosition.h"
#include "Views/SceneTeardown.h"

#include <QGuiApplication>
#include <QScreen>

using namespace Qt::StringLiterals;

PanelWindow::PanelWindow(QWindow *parent) : QQuickWindow(parent)
{
    setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    connect(this, &QWindow::activeChanged, this, &PanelWindow::followActive);
    connect(this, &QWindow::heightChanged, this, &PanelWindow::place);
    for (const auto changed : {&QWindow::widthChanged, &QWindow::heightChanged})
        connect(this, changed, this, &PanelWindow::cutCorners);
    connect(this, &PanelWindow::cornerRadiusChanged, this, &PanelWindow::cutCorners);
}

PanelWindow::~PanelWindow()
{
    tearDownScene(*this);
}

void PanelWindow::openAt(const QRect &opener)
{
    m_opener = opener;
    // The window system may report only now that it lost the focus when it was closed.
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
    setPosition(panelPosition(m_opener, size(), screen()->availableGeometry()));
}

void PanelWindow::cutCorners()
{
    // Without a compositor, transparent pixels are black.
    if (QGuiApplication::platformName() == "xcb"_L1)
        setMask(roundedRegion(size(), m_cornerRadius));
}

void PanelWindow::followActive()
{
    // It can lose the focus only after it had it.
    if (m_wasActive && !isActive())
        Q_EMIT left();
    m_wasActive = isActive();
}
