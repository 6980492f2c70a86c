#include "Platform/Tray/StatusNotifierItem.h"

#include "Platform/Tray/ClickPosition.h"
#include "Platform/Tray/Tray.h"

using namespace Qt::StringLiterals;

namespace
{
constexpr int iconSizes[] = {16, 22, 24, 32, 48};

bool sameIcon(const TrayIconState &before, const TrayIconState &after)
{
    return before.isRunning == after.isRunning && before.flameOpacity == after.flameOpacity &&
           before.minutesLeft == after.minutesLeft && before.progress == after.progress;
}
} // namespace

StatusNotifierItem::StatusNotifierItem(Tray &tray) : QDBusAbstractAdaptor(&tray), m_tray(tray) {}

void StatusNotifierItem::show(const TrayIconState &state)
{
    const TrayIconState before = std::exchange(m_state, state);
    if (!sameIcon(before, state))
        Q_EMIT NewIcon();
    if (before.label != state.label)
        Q_EMIT XAyatanaNewLabel(label(), labelGuide());
    if (before.toolTipTitle != state.toolTipTitle || before.toolTipText != state.toolTipText)
        Q_EMIT NewToolTip();
}

void StatusNotifierItem::setLabels(TrayLabels labels)
{
    if (std::exchange(m_labels, labels) != labels)
        Q_EMIT NewIcon();
}

TrayPixmaps StatusNotifierItem::iconPixmap() const
{
    TrayPixmaps pixmaps;
    for (const int size : iconSizes)
        pixmaps.append(TrayPixmap::of(trayIcon(m_state, size, m_labels)));
    return pixmaps;
}

TrayToolTip StatusNotifierItem::toolTip() const
{
    return {.iconName = {}, .icon = {}, .title = m_state.toolTipTitle, .text = m_state.toolTipText};
}

QDBusObjectPath StatusNotifierItem::menu() const
{
    return QDBusObjectPath(Tray::menuPath);
}

void StatusNotifierItem::Activate(int x, int y)
{
    Q_EMIT m_tray.activated(clickPosition(QPoint(x, y), scaledScreens()));
}

void StatusNotifierItem::SecondaryActivate(int, int)
{
    Q_EMIT m_tray.secondaryActivated();
}

void StatusNotifierItem::XAyatanaSecondaryActivate(uint)
{
    Q_EMIT m_tray.secondaryActivated();
}

void StatusNotifierItem::ContextMenu(int x, int y)
{
    Activate(x, y);
}

void StatusNotifierItem::Scroll(int, const QString &) {}

void StatusNotifierItem::ProvideXdgActivationToken(const QString &token)
{
    qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
}
