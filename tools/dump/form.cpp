#include "form.h"

#include <algorithm>

#include <zelmodel/binary_values.h>
#include <zelmodel/structs/crypto/backup_keys.h>
#include <zelmodel/structs/qor_server.h>
#include <zelmodel/structs/schedule/schedule_options.h>
#include <zelplatform/cloudbackuplib/cloudbackuplib.h>

#include "layouts.h"

namespace dump
{
namespace
{

namespace structs = zelplatform::model::structs;
using io::binary_stream_tt;

template <class TRecord>
void readRecord(binary_stream_tt& stream)
{
    TRecord().Unserialize(stream);
}

template <class TSchedule>
void readSchedule(binary_stream_tt& stream)
{
    TSchedule::Unserialize(stream);
}

void readGuid(binary_stream_tt& stream)
{
    using zelplatform::model::operator>>;
    guid::guid_t id;
    stream >> id;
}

void readCloudClient(binary_stream_tt& stream)
{
    std::string text(static_cast<std::size_t>(stream.device().remaining()), '\0');
    stream.read(text.data(), text.size());
    cloudbackuplib::CCloudRepoClientId::Deserialize(text);
}

Form makeForm(const char* name, const char* title, void (*read)(binary_stream_tt&), void (*walk)(Walk&))
{
    Form form;
    form.name = name;
    form.title = title;
    form.read = read;
    form.walk = walk;
    return form;
}

std::vector<Form> makeForms()
{
    std::vector<Form> forms{
        makeForm("key-bundle", "Key bundle", readRecord<structs::SExplicitBackupKeys>, walkKeyBundle),
        makeForm(
            "key-set", "Key set", [](binary_stream_tt& stream) { crypto::CKeySet::Unserial(stream); }, walkKeySet),
        makeForm("password-derived-key", "Password-derived key", readRecord<structs::SPasswordDerivedKey>,
                 walkPasswordDerivedKey)};
    for (auto& form : forms)
        form.holdsKeys = true;
    forms.push_back(
        makeForm("managing-server", "Managing server", readRecord<structs::SQorServer>, walkManagingServer));
    forms.push_back(
        makeForm("schedule-options", "Schedule options", readSchedule<structs::CScheduleOptions>, walkScheduleOptions));
    forms.push_back(
        makeForm("job-start", "Start of the job", readSchedule<structs::CStartJobScheduleOptions>, walkJobStart));
    forms.push_back(makeForm("guid", "GUID", readGuid, walkGuid));
    forms.push_back(makeForm("cloud-client", "Cloud client id", readCloudClient, walkCloudClient));
    forms.back().isText = true;
    // Any text with its length in front would be one, a damaged start of a job too.
    forms.push_back(makeForm(
        "text", "Text", [](binary_stream_tt& stream) { stream.read_text(); }, walkText));
    forms.back().isRecognised = false;
    return forms;
}

} // namespace

const std::vector<Form>& allForms()
{
    static const auto forms = makeForms();
    return forms;
}

const Form* findForm(std::string_view name)
{
    const auto& forms = allForms();
    const auto found = std::find_if(forms.begin(), forms.end(), [name](const Form& form) { return form.name == name; });
    return found == forms.end() ? nullptr : &*found;
}

} // namespace dump
