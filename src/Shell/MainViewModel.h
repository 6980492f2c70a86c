#pragma once

#include <QObject>

class AppState;

/// What the main window shows and can do.
class MainViewModel : public QObject
{
    Q_OBJECT

public:
    explicit MainViewModel(AppState &appState);

private:
    AppState &m_appState;
};
