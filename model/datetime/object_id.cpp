#include <zelmodel/datetime/object_id.h>

namespace zelplatform::model
{

CDateTimeEx GetNowTime()
{
    return CDateTimeEx::currentTime();
}

guid::guid_t GenerateNewObjectId()
{
    return guid::guid_t::CreateNew();
}

} // namespace zelplatform::model
