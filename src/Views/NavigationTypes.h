#pragma once

#include "Navigation/NavigationViewModel.h"

#include <QtQml/qqml.h>

/// QML_FOREIGN registrations of the navigation, which do not depend on QtQml.
struct NavigationViewModelForQml {
    Q_GADGET
    QML_FOREIGN(NavigationViewModel)
    QML_NAMED_ELEMENT(NavigationViewModel)
    QML_UNCREATABLE("Part of the main window.")
};

struct HighlightedLineForQml {
    Q_GADGET
    QML_FOREIGN(HighlightedLine)
    QML_VALUE_TYPE(highlightedLine)
};
