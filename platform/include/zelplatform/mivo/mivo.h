#pragma once

/// Arguments of commands.
#include <zelplatform/mivo/command_args.h>
