// Real faults of POSIX systems: full disks, rights, links, devices, deep trees.
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "lintavo/api/CFeApi.h"
#include "lintavo/ini/CIniFile.h"
#include "lintavo/platform/ReadFile.h"
#include "lintavo/platform/SaveFile.h"

#include "support/Beispiele.h"
#include "support/Ordner.h"

namespace lintavo::test {
namespace {

namespace fs = std::filesystem;

const std::string kOld(3000, 'o');
const std::string kNew(100000, 'n');

void Put(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

std::string Get(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

long CountEntries(const Ordner& folder) {
  return std::distance(fs::directory_iterator(folder / ""), fs::directory_iterator());
}

struct stat StatusOf(const std::string& path) {
  struct stat status {};
  EXPECT_EQ(::lstat(path.c_str(), &status), 0) << path;
  return status;
}

// While it lives a file cannot grow beyond a size: the disk is full then.
class FullDisk {
 public:
  explicit FullDisk(rlim_t size) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{size, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_{};
  void (*handler_)(int);
};

// While it lives the process has no more rights than anybody: the administrator
// would notice nothing of permissions.
class AsAnybody {
 public:
  AsAnybody() {
    if (before_ == 0) worked_ = ::seteuid(kNobody) == 0;
  }
  ~AsAnybody() {
    if (before_ == 0) worked_ = ::seteuid(0) == 0;
  }
  bool Reaches(const std::string& folder) const {
    return worked_ && ::euidaccess(folder.c_str(), X_OK) == 0;
  }

 private:
  static constexpr uid_t kNobody = 65534;
  const uid_t before_ = ::geteuid();
  bool worked_ = true;
};

TEST(SaveFaults, AFullDiskLeavesTheOldFileAndNothingElse) {
  const Ordner folder;
  Put(folder / "a.ini", kOld);
  for (const rlim_t room : {rlim_t{0}, rlim_t{1}, rlim_t{4096}, rlim_t{kNew.size() - 1}}) {
    const FullDisk full(room);
    EXPECT_FALSE(SaveFile(folder / "a.ini", kNew)) << room;
    EXPECT_FALSE(SaveFile(folder / "neu.ini", kNew)) << room;
  }
  EXPECT_EQ(Get(folder / "a.ini"), kOld);
  EXPECT_EQ(CountEntries(folder), 1);
  const FullDisk justEnough(kNew.size());
  EXPECT_TRUE(SaveFile(folder / "a.ini", kNew));
}

TEST(SaveFaults, AWindowThatCannotBeSavedIsStillThere) {
  const Ordner folder;
  const std::string path = folder / "a.aqz";
  fs::copy_file(BeispielPfad("raster_3x3.aqz"), path);
  const std::string before = Get(path);
  CFeApi window;
  ASSERT_EQ(window.ReadFromFile(path.c_str()), 1);
  {
    const FullDisk full(before.size() / 2);
    EXPECT_EQ(window.WriteToFile(path.c_str()), 0);
    EXPECT_EQ(window.WriteParameterFormular(path.c_str(), "x"), 0);
  }
  EXPECT_EQ(Get(path), before);
  EXPECT_EQ(window.WriteToFile(path.c_str()), 1);
  EXPECT_EQ(CountEntries(folder), 1);
}

TEST(SaveFaults, PermissionsAndOwnerStay) {
  const Ordner folder;
  const std::string path = folder / "a.ini";
  Put(path, kOld);
  const bool mayGiveAway = ::geteuid() == 0;
  if (mayGiveAway) {
    ASSERT_EQ(::chown(path.c_str(), 1234, 4321), 0);
  }
  for (const mode_t mode : {0600U, 0640U, 0664U, 0755U}) {
    ASSERT_EQ(::chmod(path.c_str(), mode), 0);
    ASSERT_TRUE(SaveFile(path, kNew));
    EXPECT_EQ(StatusOf(path).st_mode & 07777, mode);
  }
  if (mayGiveAway) {
    EXPECT_EQ(StatusOf(path).st_uid, 1234U);
    EXPECT_EQ(StatusOf(path).st_gid, 4321U);
  }
  const mode_t mask = ::umask(027);
  EXPECT_TRUE(SaveFile(folder / "neu.ini", kNew));
  ::umask(mask);
  EXPECT_EQ(StatusOf(folder / "neu.ini").st_mode & 07777, 0640U);
}

TEST(SaveFaults, RightsDecideBetweenRefusingAndWritingInPlace) {
  const Ordner folder;
  Put(folder / "fest.ini", kOld);
  Put(folder / "frei.ini", kOld);
  fs::permissions(folder / "fest.ini", fs::perms(0444));
  fs::permissions(folder / "frei.ini", fs::perms(0666));
  fs::permissions(folder / "", fs::perms(0777));
  {
    const AsAnybody anybody;
    if (!anybody.Reaches(folder / "")) GTEST_SKIP() << "the folder for temporary files is locked";
    EXPECT_FALSE(SaveFile(folder / "fest.ini", kNew)) << "read-only, in a folder that is not";
  }
  EXPECT_EQ(Get(folder / "fest.ini"), kOld);
  fs::permissions(folder / "", fs::perms(0555));
  {
    const AsAnybody anybody;
    EXPECT_TRUE(SaveFile(folder / "frei.ini", kNew)) << "nothing can be put beside it";
    EXPECT_FALSE(SaveFile(folder / "neu.ini", kNew));
  }
  fs::permissions(folder / "", fs::perms(0777));
  EXPECT_EQ(Get(folder / "frei.ini"), kNew);
  EXPECT_EQ(CountEntries(folder), 2);
}

TEST(SaveFaults, LinksAreFollowedAndKept) {
  const Ordner folder;
  fs::create_directory(folder / "ziel");
  Put(folder / "ziel/a.ini", kOld);
  fs::create_symlink("ziel/a.ini", folder / "direkt");
  fs::create_symlink(folder / "direkt", folder / "ueber_zwei");
  fs::create_symlink("ziel/neu.ini", folder / "ins_leere");
  fs::create_symlink("kreis2", folder / "kreis1");
  fs::create_symlink("kreis1", folder / "kreis2");
  EXPECT_TRUE(SaveFile(folder / "ueber_zwei", kNew));
  EXPECT_EQ(Get(folder / "ziel/a.ini"), kNew);
  EXPECT_TRUE(SaveFile(folder / "ins_leere", kNew));
  EXPECT_EQ(Get(folder / "ziel/neu.ini"), kNew);
  EXPECT_FALSE(SaveFile(folder / "kreis1", kNew));
  for (const char* link : {"direkt", "ueber_zwei", "ins_leere", "kreis1", "kreis2"}) {
    EXPECT_TRUE(fs::is_symlink(folder / link)) << link;
  }
  EXPECT_EQ(CountEntries(folder), 6);
}

TEST(SaveFaults, DevicesAndPipesAreWrittenInPlace) {
  EXPECT_TRUE(SaveFile("/dev/null", kNew));
  EXPECT_FALSE(SaveFile("/dev/full", kNew)) << "or there is none";
  EXPECT_TRUE(fs::is_character_file("/dev/null"));

  const Ordner folder;
  const std::string pipe = folder / "rohr";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  std::string received;
  std::thread reader([&] { received = Get(pipe); });
  EXPECT_TRUE(SaveFile(pipe, kNew));
  reader.join();
  EXPECT_EQ(received, kNew);
  EXPECT_TRUE(fs::is_fifo(pipe));
}

// Whatever ends the program while it saves: the file is whole, and nothing lies beside it.
TEST(SaveFaults, SignalsWaitForTheFile) {
  for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
    const Ordner folder;
    const pid_t child = ::fork();
    if (child == 0) {
      std::signal(number, SIG_DFL);
      SaveFile(folder / "a.ini", std::string(std::size_t{64} << 20, 'n'));
      ::pause();
    }
    while (CountEntries(folder) == 0) std::this_thread::yield();
    ::kill(child, number);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == number);
    EXPECT_EQ(CountEntries(folder), 1);
    EXPECT_EQ(fs::file_size(folder / "a.ini"), std::size_t{64} << 20);
  }
}

TEST(ReadFaults, APipeIsReadFromItsWriterAndNotWaitedForWithoutOne) {
  const Ordner folder;
  const std::string pipe = folder / "rohr";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  CIniFile document;
  std::string bytes;
  EXPECT_EQ(document.Read(pipe), 0);
  EXPECT_FALSE(ReadWholeFile(pipe, bytes));
  EXPECT_EQ(CFeApi().ReadFromCompressedFile(pipe.c_str()), 0);
  // One that takes its time.
  const int writer = ::open(pipe.c_str(), O_RDWR);
  std::thread slow([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    Put(pipe, "[A]\nx=1\n");
    ::close(writer);
  });
  EXPECT_EQ(document.Read(pipe), 1);
  slow.join();
  EXPECT_EQ(document.GetLines().size(), 2U);
  EXPECT_EQ(document.Read(pipe), 0);
}

#ifdef __linux__
TEST(SaveFaults, OpenFilesBehindTheirNumbersKeepTheirPlace) {
  const Ordner folder;
  Put(folder / "a.ini", kOld);
  std::FILE* open = std::fopen((folder / "a.ini").c_str(), "r");
  ASSERT_NE(open, nullptr);
  const std::string path = "/dev/fd/" + std::to_string(::fileno(open));
  EXPECT_TRUE(SaveFile(path, kNew));
  // Whoever holds the file open sees what was written.
  EXPECT_EQ(Get(path), kNew);
  std::fclose(open);
}

TEST(ReadFaults, WhatCannotBeReadToItsEndIsNotRead) {
  CIniFile document;
  document.AddLine("bleibt");
  EXPECT_EQ(document.Read("/proc/self/mem"), 0) << "opens, but reading fails";
  EXPECT_EQ(document.Read("/dev/zero"), 0) << "never ends";
  EXPECT_EQ(document.GetLines().size(), 1U);
  EXPECT_EQ(document.GetCntSections(), 0);
}
#endif

TEST(ReadFaults, LongPathsAndMissingRightsAreNoFiles) {
  const Ordner folder;
  Put(folder / "geheim.aqz", kOld);
  fs::permissions(folder / "geheim.aqz", fs::perms(0000));
  const AsAnybody anybody;
  if (!anybody.Reaches(folder / "")) GTEST_SKIP() << "the folder for temporary files is locked";
  CFeApi window;
  for (const std::string& name :
       {std::string("geheim.aqz"), std::string(300, 'n'), std::string(5000, 'n')}) {
    EXPECT_EQ(window.ReadFromFile((folder / name).c_str()), 0);
    EXPECT_EQ(window.GetErrorID(), 28);
    EXPECT_EQ(window.ReadFromCompressedFile((folder / name).c_str()), 0);
  }
}

TEST(Dateisuche, CirclesAndBottomlessFoldersComeToAnEnd) {
  const Ordner folder;
  fs::path deep = folder / "tief";
  fs::create_directory(deep);
  // Three times as deep as is searched.
  for (int i = 0; i < 300; ++i) fs::create_directory(deep /= "d");
  Put((deep / "zu_tief.aqz").string(), kOld);
  fs::create_directory_symlink("..", folder / "tief/kreis");
  fs::create_directory_symlink(folder / "", folder / "tief/d/kreis");
  char path[256];
  EXPECT_EQ(CFeApi::GetValidMakroFile((folder / "").c_str(), path), 0);
  EXPECT_EQ(path[0], '\0');
  Put(folder / "tief/d/d/d/fenster.cqz", kOld);
  EXPECT_EQ(CFeApi::GetValidMakroFile((folder / "").c_str(), path), 1);
  EXPECT_EQ(std::string(path), folder / "tief/d/d/d/fenster.cqz");
}

}  // namespace
}  // namespace lintavo::test
