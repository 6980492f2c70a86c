#include "PelkoAnimation.h"

SpringMotion::SpringMotion(const Spring &spring) : m_duration(spring.duration()), m_curve(spring.curve()) {}

PelkoAnimation::PelkoAnimation(QObject *parent) : QObject(parent) {}

SpringMotion PelkoAnimation::micro() const
{
    static const SpringMotion motion(microSpring);
    return motion;
}

SpringMotion PelkoAnimation::smooth() const
{
    static const SpringMotion motion(smoothSpring);
    return motion;
}

SpringMotion PelkoAnimation::bouncy() const
{
    static const SpringMotion motion(bouncySpring);
    return motion;
}

SpringMotion PelkoAnimation::settle() const
{
    static const SpringMotion motion(settleSpring);
    return motion;
}

SpringMotion PelkoAnimation::spring(qreal response, qreal dampingFraction) const
{
    return SpringMotion(Spring{response, dampingFraction});
}
