#include "operation.h"

namespace zelmodel_test
{

const Operations& everyOperation()
{
    static const Operations operations = [] {
        Operations joined;
        for (const auto family :
             {xmlNodeOperations, xmlWriterOperations, calendarOperations, maskOperations, scheduleOperations,
              windowOperations, jobOperations, gfsOperations, recordOperations, storageOperations, sessionOperations,
              transformOperations, keyOperations, enumerationOperations, timeOperations, textOperations,
              deviceOperations, logOperations})
            joined = std::move(joined) + family();
        return joined;
    }();
    return operations;
}

} // namespace zelmodel_test
