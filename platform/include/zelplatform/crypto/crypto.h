#pragma once

/// Memory for key material.
#include <zelplatform/crypto/sec_buffer.h>
