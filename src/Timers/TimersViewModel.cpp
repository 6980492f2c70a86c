#include "Timers/TimersViewModel.h"

TimersViewModel::TimersViewModel(FlowTimer &flow, QObject *parent) : QObject(parent), m_flow(flow) {}
