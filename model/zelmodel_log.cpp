#include <zelmodel/zelmodel_log.h>

logging::log_section_t zelmodel_log("zelmodel");
