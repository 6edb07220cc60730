#pragma once

#include <pybind11/pybind11.h>

namespace python
{

/// Each adds the classes and functions of one family to the module. A family comes after those whose classes its
/// signatures name.
void bindWindow(pybind11::module_& module);
void bindSchedule(pybind11::module_& module);
void bindGfs(pybind11::module_& module);
void bindJob(pybind11::module_& module);
void bindDocument(pybind11::module_& module);
void bindLogs(pybind11::module_& module);

} // namespace python
