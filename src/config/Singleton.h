#pragma once

#include <base/Singleton.h>
