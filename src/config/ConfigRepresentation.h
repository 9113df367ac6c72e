#pragma once

#include <axes/ConfigRepresentation.h>
