#pragma once

#include "Services/Scheduler.h"

#include <QObject>

/// The state of the launch card. `start` shows flame and name; one second later the card is removed. Each of
/// the three properties changes once; the view animates the changes.
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

    /// Called when the card is visible for the first time; later calls do nothing.
    Q_INVOKABLE void start();
    /// Removes the card now.
    Q_INVOKABLE void cancel();
    /// Called when the window's contents cannot be loaded. `errors` are the messages of the QML engine.
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
