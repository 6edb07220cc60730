#include <zelmodel/binary_values.h>
#include <zelmodel/schedules.h>
#include <zelplatform/cloudbackuplib/cloudbackuplib.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/io/io.h>
#include <zelplatform/mivo/mivo.h>
#include <zelplatform/util/util.h>

#include "assigning.h"
#include "samples.h"

namespace zelmodel_test
{
namespace
{

using namespace zelplatform::model;
using cloudbackuplib::CCloudRepoClientId;
using io::binary_stream_tt;
using io::mem_stream_tt;
using io::net::CNetworkEndpoint;
using mivo::CMivoCommandArgs;

mem_stream_tt device()
{
    const std::string bytes = longText("begun");
    return mem_stream_tt(crypto::sec_buffer_t(bytes.begin(), bytes.end()));
}

std::string tellDevice(const mem_stream_tt& made)
{
    return {made.buffer().begin(), made.buffer().end()};
}

Operations deviceChanges()
{
    const std::string much(100000, 'm');
    return changing<mem_stream_tt>(
        "mem_stream_tt", device, tellDevice,
        {{"write", [much](mem_stream_tt& made) { made.write(much.data(), much.size()); }},
         {"reserve", [](mem_stream_tt& made) { made.reserve(100000); }},
         {"number", [](mem_stream_tt& made) { binary_stream_tt(made).write(&made, 0); }},
         {"assignedWhole", [much](mem_stream_tt& made) { made = mem_stream_tt(crypto::sec_buffer_t(9, 'n')); }}});
}

// What a form has written before a failure stays on the device.
template <class TWrite>
std::string written(const TWrite& write)
{
    mem_stream_tt memory;
    binary_stream_tt stream(memory);
    write(stream);
    return tellDevice(memory);
}

std::vector<Question<Nothing>> forms()
{
    const auto schedule = fullSchedule();
    const auto serialized = [](const auto& options) {
        return
            [options](const Nothing&) { return written([&](binary_stream_tt& stream) { options.Serialize(stream); }); };
    };
    return {
        {"CScheduleOptions.Serialize", serialized(schedule)},
        {"CStartJobScheduleOptions.Serialize", serialized(schedule.GetJobStartOptions())},
        {"text", [](const Nothing&) { return written([](binary_stream_tt& stream) { stream << longText(); }); }},
        {"guid", [](const Nothing&) { return written([](binary_stream_tt& stream) { stream << guid::guid_t(); }); }},
        {"buffer",
         [](const Nothing&) {
             return written([](binary_stream_tt& stream) { stream << crypto::sec_buffer_t(9000, 'b'); });
         }},
    };
}

CMivoCommandArgs arguments()
{
    CMivoCommandArgs made;
    made.SetString("first", longText("first"));
    made.SetUInt64("second", 2);
    return made;
}

std::string tellArguments(const CMivoCommandArgs& made)
{
    std::string told;
    for (const char* key : {"first", "another key that is longer than what a string keeps inside"})
    {
        try
        {
            told += made.Has(key) ? made.GetString(key) : "none";
        }
        catch (const exc::CRuntimeExc& failure)
        {
            told += failure.what();
        }
    }
    return told + (made.Has("second") ? util::toStr(made.GetUInt64("second")) : "none");
}

Operations argumentOperations()
{
    using Args = CMivoCommandArgs;
    const char* const newKey = "another key that is longer than what a string keeps inside";
    const auto other = [newKey] {
        Args made;
        made.SetString("first", longText("other"));
        made.SetString(newKey, longText("other"));
        return made;
    };
    return changing<Args>(
               "CMivoCommandArgs", arguments, tellArguments,
               {{"SetString.new", [newKey](Args& made) { made.SetString(newKey, longText("new")); }},
                {"SetString.again", [](Args& made) { made.SetString("first", longText("again")); }},
                {"SetUInt64", [](Args& made) { made.SetUInt64("first", 7); }},
                {"SetDateTime", [newKey](Args& made) { made.SetDateTime(newKey, datetime::CDateTime(7, true)); }}}) +
           assigning<Args>("CMivoCommandArgs", arguments, other, tellArguments);
}

std::string tellEndpoint(const CNetworkEndpoint& endpoint)
{
    return endpoint.ToString();
}

CNetworkEndpoint endpoint()
{
    return {"host", 1};
}

CNetworkEndpoint longEndpoint()
{
    return {std::string(40, 'h'), 2};
}

CCloudRepoClientId client()
{
    return CCloudRepoClientId(guid::guid_t({1}), "companion");
}

CCloudRepoClientId otherClient()
{
    return CCloudRepoClientId(guid::guid_t({2}), longText("companion"));
}

std::string tellClient(const CCloudRepoClientId& made)
{
    return made.Serialize();
}

} // namespace

Operations deviceOperations()
{
    return deviceChanges() + asking("stream", forms()) + argumentOperations() +
           assigning<CNetworkEndpoint>("CNetworkEndpoint", endpoint, longEndpoint, tellEndpoint) +
           asking("CNetworkEndpoint", {{"MergeToString",
                                        [](const Nothing&) {
                                            return CNetworkEndpoint::MergeToString({endpoint(), longEndpoint()});
                                        }}}) +
           assigning<CCloudRepoClientId>("CCloudRepoClientId", client, otherClient, tellClient);
}

} // namespace zelmodel_test
