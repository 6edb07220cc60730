#include "check_file.h"

#include <zelplatform/exc/exc.h>

#include "check.h"
#include "files/input_file.h"
#include "files/whole_file.h"

namespace check
{

CheckedFile checkFile(const std::string& name, const zelplatform::model::structs::BackupWindow* window)
{
    CheckedFile file{files::shownName(name), {}, ""};
    try
    {
        file.findings = checkText(files::readInput(name), window);
    }
    catch (const files::InputError& error)
    {
        file.failure = error.what();
    }
    catch (const exc::CRuntimeExc& refusal)
    {
        file.findings = refuseText(refusal.what());
    }
    return file;
}

} // namespace check
