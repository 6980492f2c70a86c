#include "Platform/QtScheduler.h"
