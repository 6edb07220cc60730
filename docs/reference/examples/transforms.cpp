#include <iostream>

#include <zelmodel/transforms.h>
#include <zelplatform/xmlpp/xmlpp.h>

using namespace zelplatform::model::transform;

int main()
{
    // The side that decides writes what is to be done,
    CTransformSpec removal;
    removal.SetSessionId(guid::guid_t::FromAStr("6f9619ff-8b86-d011-b42d-00c04fc964ff"));
    removal.SetBackupId(guid::guid_t::FromAStr("11111111-2222-3333-4444-555555555555"));
    removal.AddPointId(guid::guid_t::FromAStr("aaaaaaaa-0000-0000-0000-000000000001"));
    removal.AddPointId(guid::guid_t::FromAStr("aaaaaaaa-0000-0000-0000-000000000002"));
    const auto text = removal.ToString();

    // and the side that performs reads it by its type.
    const auto document = xmlpp::CXmlDocument::Unserialize(text);
    const auto work = ITransformSpec::UnserializeSpec(document.GetRootNode(), ETransformOperationType::DeletePoint);
    std::cout << "session " << work->GetSessionId().ToAStr() << '\n';
    if (const auto points = std::dynamic_pointer_cast<CTransformSpec>(work))
    {
        std::cout << "removes " << points->GetPointIds().size() << " points\n";
        for (const auto& point : points->GetPointIds())
            std::cout << "  " << point.ToAStr() << '\n';
    }
    std::cout << (work->ToString() == text ? "written again as it was\n" : "changed\n");
}
