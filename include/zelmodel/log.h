#pragma once

/// The log of the library.
/// Everything that the library notes goes to the one section "zelmodel": what it read in spite of a fault and what it
/// skipped. Failures themselves are thrown; JobSessionDetails::fromXmlStr alone logs its failure too. Where entries end
/// up is decided by logging::set_sink; without a sink they are dropped.

#include <zelmodel/zelmodel_log.h>
