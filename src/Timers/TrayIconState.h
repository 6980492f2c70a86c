#pragma once

#include <QList>
#include <QString>

class PomodoroTimer;

/// One entry of the tray's menu; a separator has no text.
struct TrayMenuRow {
    enum class Command { none, open, startOrPause, reset, quit };
    Command command = Command::none;
    QString text;

    bool operator==(const TrayMenuRow &) const = default;
};

/// The state of the pomodoro that the tray shows.
struct TrayIconState {
    bool isRunning = false;
    /// The opacity of the flame: 0.8 at rest; while the timer runs it alternates every second.
    double flameOpacity = 0.8;
    /// The elapsed part of the phase, from 0 to 1.
    double progress = 0;
    int minutesLeft = 25;
    /// The remaining time beside the flame; empty at rest.
    QString label;
    QString toolTipTitle;
    QString toolTipText;
    QList<TrayMenuRow> menu;

    bool operator==(const TrayIconState &) const = default;
};

/// `saveError` is the error of the last save or empty; the tool tip contains it.
TrayIconState trayIconState(const PomodoroTimer &timer, const QString &saveError = {});
