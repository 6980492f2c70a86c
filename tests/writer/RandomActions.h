#pragma once

#include "writer/Action.h"

#include <random>

/// Chooses the next action at random, mostly writing. The same seed gives the same actions on every machine.
class RandomActions
{
public:
    explicit RandomActions(quint32 seed) : m_lot(seed) {}

    Action next();

private:
    int below(int end) { return int(m_lot() % quint32(end)); }
    double fraction() { return below(1000) / 1000.0; }
    QString oneOf(const QStringList &texts) { return texts.at(below(int(texts.size()))); }
    QString words();
    QString foreignText();
    Action key();
    Action pointer();
    Action clipboard();
    Action composing();
    Action rare();

    std::mt19937 m_lot;
};
