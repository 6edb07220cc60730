#pragma once

/// Devices, binary streams over them, and network endpoints.
#include <zelplatform/io/binary_stream.h>
#include <zelplatform/io/device.h>
#include <zelplatform/io/mem_stream.h>
#include <zelplatform/io/network_endpoint.h>
