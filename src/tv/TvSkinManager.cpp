#include "TvSkinManager.h"
