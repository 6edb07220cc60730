#include <zelmodel/datetime/date.h>

namespace zelplatform::model
{

std::string CDate::toString() const
{
    return m_midnight.toStdString("%m/%d/%Y");
}

} // namespace zelplatform::model
