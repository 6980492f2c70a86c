#pragma once

#include <QObject>

class AppState;

/// Saves before the program ends. If saving fails, the program keeps running and the user is asked once
/// whether the unsaved changes may be lost.
class QuitGuard : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool asks READ asks NOTIFY asksChanged)
    Q_PROPERTY(QString reason READ reason NOTIFY reasonChanged)

public:
    explicit QuitGuard(AppState &appState, QObject *parent = nullptr);

    /// Whether the question is shown.
    bool asks() const { return m_asks; }
    /// Why the changes could not be saved. Keeps its value while the question fades out.
    QString reason() const { return m_reason; }

    /// Saves the changes. Returns whether the program may end; if not, the question is shown.
    Q_INVOKABLE bool mayQuit();
    /// Ends the program and discards the changes that could not be saved.
    Q_INVOKABLE void quitAnyway();
    Q_INVOKABLE void stay();

Q_SIGNALS:
    void asksChanged();
    void reasonChanged();
    void quitRequested();

private:
    AppState &m_appState;
    QString m_reason;
    bool m_asks = false;
    bool m_mayLoseChanges = false;
};
