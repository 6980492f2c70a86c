#include "Shell/MainViewModel.h"

MainViewModel::MainViewModel(AppState &appState) : m_appState(appState)
{
    (void)m_appState;
}
