// The whole library in one header: the façade, and the model for hosts that
// work on its classes directly.
#pragma once

#include "lintavo/api/CFeApi.h"
#include "lintavo/api/CFeApiPolygon.h"
#include "lintavo/api/CFeApiWandOeffnungsParameter.h"
#include "lintavo/platform/Export.h"
