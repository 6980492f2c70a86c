#pragma once

#include "Services/Scheduler.h"
