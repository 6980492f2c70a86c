#pragma once

#include "Services/Scheduler.h"

#include <QObject>

/// The title card that covers a new window: flame and name come at once with `start`, and one second later
/// the card goes. Each of the three states turns once and never back; how they fade is the view's affair.
class LaunchSequence : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool overlayVisible READ overlayVisible NOTIFY overlayVisibleChanged)
    Q_PROPERTY(bool showFlame READ showFlame NOTIFY showFlameChanged)
    Q_PROPERTY(bool showTitle READ showTitle NOTIFY showTitleChanged)

public:
    explicit LaunchSequence(Scheduler &scheduler, QObject *parent = nullptr);

    bool overlayVisible() const { return m_overlayVisible; }
    bool showFlame() const { return m_showFlame; }
    bool showTitle() const { return m_showTitle; }

    /// For the first time the card is seen; later calls do nothing.
    Q_INVOKABLE void start();
    /// Ends the wait: the card goes now. It never stays up.
    Q_INVOKABLE void cancel();
    /// The window's contents cannot be loaded. `errors` are the lines of the QML engine.
    Q_INVOKABLE void fail(const QString &errors) { Q_EMIT failed(errors); }

Q_SIGNALS:
    void failed(const QString &errors);
    void overlayVisibleChanged();
    void showFlameChanged();
    void showTitleChanged();

private:
    void removeCard();

    Scheduler &m_scheduler;
    ScheduledCall m_sleep;
    bool m_overlayVisible = true;
    bool m_showFlame = false;
    bool m_showTitle = false;
};
