#include <zelmodel/version.h>

#include "bindings.h"
#include "errors.h"

PYBIND11_MODULE(zelmodel, module)
{
    module.doc() =
        "The documents of a backup agent: what they say, when their jobs run, and what is wrong with them.\n\n"
        "Every answer is the one that the library and its command zelmodel give. What is refused is an Error.";
    module.attr("__version__") = zelmodel::Version();
    python::bindError(module);
    python::bindWindow(module);
    python::bindSchedule(module);
    python::bindGfs(module);
    python::bindJob(module);
    python::bindDocument(module);
    python::bindLogs(module);
}
