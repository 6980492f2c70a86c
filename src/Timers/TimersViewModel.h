#pragma once

#include "Timers/FlowTimer.h"

/// What the windows know of the timers.
class TimersViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(FlowTimer *flow READ flow CONSTANT)

public:
    explicit TimersViewModel(FlowTimer &flow, QObject *parent = nullptr);

    FlowTimer *flow() const { return &m_flow; }

private:
    FlowTimer &m_flow;
};
