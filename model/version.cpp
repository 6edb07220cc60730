#include <zelmodel/version.h>

namespace zelmodel
{

const char* Version() noexcept
{
    return ZELMODEL_VERSION;
}

} // namespace zelmodel
