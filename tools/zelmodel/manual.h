#pragma once

#include "usage/man_page.h"

/// The manual page: the commands, and what their options do not tell.
usage::Manual manualOf(usage::Command program);
