// What a check of programs knows of this host.
#pragma once

#include "host/check/Knowledge.h"

// All functions that the started host has, those of its plug-ins too, and the dialogs in place, add-ons
// included.
check::Knowledge hostKnowledge();
