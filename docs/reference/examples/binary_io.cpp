#include <iostream>

#include <zelmodel/binary_io.h>
#include <zelplatform/exc/exc.h>

using zelplatform::model::operator<<;
using zelplatform::model::operator>>;

int main()
{
    const auto backup = guid::guid_t::FromAStr("{6F9619FF-8B86-D011-B42D-00C04FC964FF}");

    // Written one after the other, little-endian, without tags.
    io::mem_stream_tt memory;
    io::binary_stream_tt stream(memory);
    stream << backup << std::string("srv-files") << std::uint32_t{14};
    std::cout << "written: " << memory.buffer().size() << " bytes\n";

    // Read in the same order.
    guid::guid_t id;
    std::string name;
    std::uint32_t days = 0;
    stream >> id >> name >> days;
    std::cout << id.ToAStr() << ", " << name << ", " << days << " days\n";

    // A device that has less than it should: the value stays as it was.
    try
    {
        stream >> days;
    }
    catch (const exc::CRuntimeExc& failure)
    {
        std::cout << failure.what() << '\n' << "still " << days << " days\n";
    }
}
