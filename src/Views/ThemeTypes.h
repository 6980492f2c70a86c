#pragma once

#include "Theme/PelkoAnimation.h"

#include <QtQml/qqml.h>

/// QML_FOREIGN registrations of the springs, which do not depend on QtQml.
struct SpringMotionForQml {
    Q_GADGET
    QML_FOREIGN(SpringMotion)
    QML_VALUE_TYPE(springMotion)
};

struct PelkoAnimationForQml {
    Q_GADGET
    QML_FOREIGN(PelkoAnimation)
    QML_NAMED_ELEMENT(PelkoAnimation)
    QML_SINGLETON
};
