#pragma once

/// Log sections and the sinks they write to; the sink for spdlog has a header of its own, which is not included here.
#include <zelplatform/logging/log_section.h>
#include <zelplatform/logging/log_sink.h>
#include <zelplatform/logging/memory_sink.h>
