#include <string>

#include <gtest/gtest.h>

#include <zelmodel/data_size.h>
#include <zelmodel/enumerations.h>
#include <zelmodel/log.h>

using namespace zelplatform;
using namespace zelplatform::model;

namespace
{

/// What a client's own static initialiser finds: the library is ready, and its log goes nowhere.
struct AtLoad
{
    AtLoad() { zelmodel_log.info("Nobody listens."); }

    bool hadSink = logging::current_sink() != nullptr;
    std::string repository = BackupRepositoryType::toStringList().front();
    std::string week = structs::gfs::ESennightOfMonth::getLongStrSet().back();
    std::string unit = EDataSizeUnit::GetShortStrSet().back();
    std::string size = CSize::FromStr("1.5k").ToNBytesStr();
};

const AtLoad Seen;

TEST(LoadTimeTest, LibraryIsReadyForStaticInitialisersOfItsClients)
{
    EXPECT_FALSE(Seen.hadSink);
    EXPECT_EQ(Seen.repository, "LocalDrive");
    EXPECT_EQ(Seen.week, "Last");
    EXPECT_EQ(Seen.unit, "E");
    EXPECT_EQ(Seen.size, "1.5 KB");
}

} // namespace
