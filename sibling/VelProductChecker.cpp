#include "sibling/VelProductChecker.h"

VelProductChecker::~VelProductChecker() = default;
