#include "lbx_plugin.h"

LBX_PLUGIN
