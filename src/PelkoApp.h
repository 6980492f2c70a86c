#pragma once

#include <QQmlApplicationEngine>

/// The composition root: the one place that knows every part and hands each what it needs.
class PelkoApp
{
public:
    PelkoApp();

private:
    QQmlApplicationEngine m_engine;
};
