// A database in a folder where nothing may be written, and the command run by somebody whom that stops.
#pragma once

#include "command.h"

namespace velor::test {

class ReadOnlyFolder {
  public:
    ReadOnlyFolder() {
        using std::filesystem::perms;
        std::filesystem::create_directory(folder_ / "baze");
        std::filesystem::copy_file(VELOR_DATABASE, path());
        std::filesystem::copy_file(kVelor, program_);  // the build folder may be closed to others
        std::filesystem::permissions(folder_.path(), perms(0755));
        std::filesystem::permissions(folder_ / "baze", perms(0555));
    }
    ~ReadOnlyFolder() { std::filesystem::permissions(folder_ / "baze", std::filesystem::perms(0755)); }
    ReadOnlyFolder(const ReadOnlyFolder&) = delete;
    ReadOnlyFolder& operator=(const ReadOnlyFolder&) = delete;

    std::string path() const { return folder_ / "baze/VELOR.DRC"; }
    bool holdsListing() const { return std::filesystem::exists(folder_ / "baze/SEZNAM.DAT"); }

    // Root may write everywhere, so that the command then runs as nobody; false where that cannot be arranged.
    static bool isEffective() { return geteuid() != 0 || std::filesystem::exists(kSetpriv); }

    Outcome run(Words words, const std::string& input = "") const {
        words.insert(words.end(), {"--baze", path()});
        if (geteuid() != 0) return test::run(words, program_, input);
        words.insert(words.begin(), {"--reuid=65534", "--regid=65534", "--clear-groups", program_});
        return test::run(words, kSetpriv, input);
    }

  private:
    static constexpr const char* kSetpriv = "/usr/bin/setpriv";

    TemporaryFolder folder_;
    std::string program_ = folder_ / "velor";
};

}  // namespace velor::test
