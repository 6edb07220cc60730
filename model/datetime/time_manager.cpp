#include <zelmodel/datetime/time_manager.h>

namespace zelplatform::model
{

ITimeManager::~ITimeManager() = default;

} // namespace zelplatform::model
