#include "platform/file_system.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <thread>

#include "platform/system.h"
#include "support/sample_mixture.h"

namespace velor::test {
namespace {

namespace fs = std::filesystem;

TEST(ReplaceFile, leavesTheOldOrTheNewContentOnly) {
    const TemporaryFolder folder;
    const std::string path = folder / "file";
    platform::replaceFile(path, "one");
    fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
    platform::replaceFile(path, "two");
    EXPECT_EQ(readFile(path), "two");
#ifndef _WIN32  // which knows a read-only mark alone
    EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
#endif
    // A folder cannot be replaced by a file; what was begun is taken away again.
    fs::create_directories(folder / "target/inside");
    EXPECT_EQ(errorNumber([&] { platform::replaceFile(folder / "target", "three"); }), RunTimeError::kPathFileAccess);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 2);
    EXPECT_EQ(errorNumber([&] { platform::replaceFile(folder / "gone/file", ""); }), RunTimeError::kPathNotFound);
    EXPECT_EQ(errorNumber([&] { platform::deleteFile(path + std::string("\0x", 2)); }), RunTimeError::kFileNotFound);
    EXPECT_TRUE(fs::exists(path));
}

// Readers that look while writers replace see one whole content or the other.
TEST(ReplaceFile, isAtomic) {
    const TemporaryFolder folder;
    const std::string path = folder / "file", a(100'000, 'a'), b(100'000, 'b');
    platform::replaceFile(path, a);
    std::jthread writer([&] {
        for (int i = 0; i < 50; ++i) platform::replaceFile(path, i % 2 == 0 ? b : a);
    });
    for (int i = 0; i < 200; ++i) {
        const std::string seen = platform::readText(path, 1'000'000);
        ASSERT_TRUE(seen == a || seen == b);
    }
}

TEST(System, refusesWhatIsNoFileAndWalksNoKernelFolders) {
    EXPECT_EQ(errorNumber([] { platform::ReadOnlyFile("/dev/null"); }), RunTimeError::kPathFileAccess);
    for (const std::string& volume : platform::volumes())
        EXPECT_FALSE(volume.starts_with("/proc/") || volume.starts_with("/sys/")) << volume;
}

}  // namespace
}  // namespace velor::test
