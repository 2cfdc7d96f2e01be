#pragma once

#include "hostcodes.h"
