// SPDX-License-Identifier: Apache-2.0
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <tuple>

#include "Platform/AtomicFile.h"
#include "Source/Preferences.h"
#include "Source/WatermarkSupport.h"

namespace zarvo {
namespace {

namespace fs = std::filesystem;

constexpr char kCollection[] = "marks.plist";

/// No two fields are alike.
const WatermarkData kMark = [] {
  WatermarkData mark{};
  std::strcpy(mark.textString, "Draft \"<1>\"");
  std::strcpy(mark.filename, "unused.png");
  std::strcpy(mark.filePath, "/a/\xC3\xA9.png");
  std::strcpy(mark.fontName, "Times-Bold");
  std::tie(mark.xOffset, mark.yOffset, mark.fontColorRed, mark.fontColorGreen, mark.fontColorBlue,
           mark.fontColorAlpha) = std::tuple(0.1F, -2.5F, 0.25F, 1.0F / 3, 1.0F, 0.5F);
  std::tie(mark.wellColorRed, mark.wellColorGreen, mark.wellColorBlue, mark.wellColorAlpha) =
      std::tuple(0.7F, 0.8F, 0.9F, 0.95F);
  std::tie(mark.angle, mark.density, mark.scale, mark.units, mark.fontSize) =
      std::tuple(-45, 40, 250, 2, 72);
  std::tie(mark.isTextWatermark, mark.xPos, mark.yPos) = std::tuple(1, 100.1, -1.0 / 3);
  return mark;
}();

/// Every test has folders of its own for the shared and the user's files.
class Store : public testing::Test {
 protected:
  Store() {
    char pattern[] = "/tmp/zarvo-store-XXXXXX";
    root_ = ::mkdtemp(pattern);
    ::setenv("ZARVO_APPLICATION_SUPPORT", root_.c_str(), 1);
    ::setenv("XDG_CONFIG_HOME", (root_ / "config").c_str(), 1);
  }
  ~Store() override { fs::remove_all(root_, ignored_); }

  fs::path Folder() const { return root_ / "Zarvo"; }
  fs::path File() const { return Folder() / kCollection; }
  void Write(const std::string& bytes) const {
    fs::create_directories(Folder());
    std::ofstream(File(), std::ios::binary) << bytes;
  }
  std::string Read() const {
    std::ifstream file(File(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  static std::ptrdiff_t Entries(const fs::path& folder) {
    return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
  }
  static bool Save(const std::string& text) {
    WatermarkData data = kMark;
    std::strcpy(data.textString, text.c_str());
    return saveWatermarkData(kCollection, data);
  }
  int Load(const std::string& name) { return loadWatermarkData(kCollection, &name, &data_); }

  fs::path root_;
  WatermarkData data_ = kMark;
  std::error_code ignored_;
};

TEST_F(Store, EveryStoredFieldComesBack) {
  ASSERT_TRUE(Save(kMark.textString));
  data_ = {};
  ASSERT_EQ(Load(kMark.textString), 1);
  data_.isTextWatermark = 1;  // not stored
  EXPECT_EQ(std::memcmp(&data_, &kMark, sizeof kMark), 0);
  struct stat info {};
  ASSERT_EQ(::stat(File().c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 0444, 0444U) << "the filter runs as another user";

  const WatermarkData zero{};
  EXPECT_EQ(Load("Final"), 0);
  EXPECT_EQ(std::memcmp(&data_, &zero, sizeof zero), 0);
  data_ = kMark;
  EXPECT_EQ(loadWatermarkData(kCollection, nullptr, &data_), 0);
  EXPECT_EQ(std::memcmp(&data_, &zero, sizeof zero), 0);
}

TEST_F(Store, OddEntriesKeepTheRecordSane) {
  Write(R"(<plist version="1.0"><dict><key>x</key><dict><key>fontName</key><string>)" +
        std::string(511, 'b') + "</string><key>textString</key><string>" + std::string(512, 'a') +
        R"(</string><key>filename</key><integer>1</integer>
           <key>angle</key><real>-30.9</real><key>scale</key><real>1e300</real>
           <key>density</key><string>5</string><key>fontSize</key><integer>4294967297</integer>
           <key>xPos</key><real>nan</real><key>xOffset</key><real>1e300</real>
           <key>yPos</key><integer>7</integer></dict>
           <key>y</key><string>no entry</string></dict></plist>)");
  // Numbers that are out of range or no numbers, and texts that are none, leave their fields.
  WatermarkData expected = kMark;
  std::memset(expected.textString, 0, sizeof expected.textString);  // does not fit
  std::memset(expected.fontName, 'b', sizeof expected.fontName - 1);
  expected.angle = -30;
  expected.yPos = 7;
  ASSERT_EQ(Load("x"), 1);
  EXPECT_EQ(std::memcmp(&data_, &expected, sizeof expected), 0);
  EXPECT_EQ(Load("y"), 0);
}

TEST_F(Store, ListsEntriesAndFontsShareOneFile) {
  const Data font{'%', '!', 0, 255};
  EXPECT_FALSE(storeFontData(kCollection, "Gothic", font)) << "fonts never start a file";
  EXPECT_FALSE(removeWatermarkData(kCollection, "Draft"));
  EXPECT_FALSE(fs::exists(File()));

  const std::string composed = "Caf\xC3\xA9", decomposed = "Cafe\xCC\x81";  // one name
  const Array names{Value("None"), Value(composed)};
  ASSERT_TRUE(saveWatermarkList(kCollection, &names));
  ASSERT_TRUE(Save(decomposed));
  ASSERT_TRUE(storeFontData(kCollection, "Gothic", font));

  Array loaded, shown;
  const WatermarkBrowser browser = [&shown](const Array& all) { shown = all; };
  ASSERT_EQ(loadWatermarkList(kCollection, &browser, &loaded), 1);
  EXPECT_EQ(Value(loaded), Value(names));
  EXPECT_EQ(Value(shown), Value(names));
  EXPECT_EQ(Load(composed), 1);
  EXPECT_EQ(Load(decomposed), 1);
  Data bytes{1};
  for (const char* key : {"Gothic", composed.c_str(), "missing"})
    loadFontData(kCollection, key, &bytes);
  EXPECT_EQ(bytes, (Data{1, '%', '!', 0, 255})) << "appended, and only data";

  EXPECT_TRUE(removeWatermarkData(kCollection, decomposed));
  EXPECT_EQ(Load(composed), 0);
  ASSERT_EQ(loadWatermarkList(kCollection, nullptr, &loaded), 1);
  EXPECT_EQ(loaded.size(), 2U) << "removing leaves the list alone";

  WatermarkData image = kMark;
  image.isTextWatermark = 0;
  ASSERT_TRUE(saveWatermarkData(kCollection, image));
  EXPECT_EQ(Load("unused.png"), 1);
  std::strcpy(image.filename, "WatermarkListEntries");
  EXPECT_FALSE(saveWatermarkData(kCollection, image)) << "it would replace the list";
  EXPECT_EQ(loadWatermarkList(nullptr, nullptr, &loaded), 0);
  EXPECT_EQ(loadWatermarkList(kCollection, nullptr, nullptr), 0);
  EXPECT_FALSE(saveWatermarkList(kCollection, nullptr));
}

TEST_F(Store, DamagedFilesAreReportedAndKeptAside) {
  ASSERT_TRUE(Save("Draft"));
  const std::string whole = Read();
  const std::string array = "<plist version=\"1.0\"><array/></plist>";
  for (const std::string& bytes :
       {std::string("<plist><dict"), whole.substr(0, whole.size() / 2), std::string(), array}) {
    Write(bytes);
    testing::internal::CaptureStderr();
    Array names;
    EXPECT_EQ(loadWatermarkList(kCollection, nullptr, &names), 0);
    const std::string log = testing::internal::GetCapturedStderr();
    if (bytes != array) {
      EXPECT_TRUE(log.starts_with("CopyXMLData()::CFPropertyListCreateFromXMLData() error: "));
      EXPECT_EQ(log.find('\n'), log.size() - 1) << "one line";
    }
    EXPECT_FALSE(storeFontData(kCollection, "Gothic", {1}));
    EXPECT_EQ(Read(), bytes) << "changes leave a damaged file alone";
    ASSERT_TRUE(Save("Draft"));
    EXPECT_EQ(Read(), whole);
    EXPECT_EQ(fs::file_size(File().string() + ".damaged"), bytes.size());
  }
}

TEST_F(Store, FoldersThatAreMissingOrReadOnly) {
  EXPECT_EQ(CopyPreferenceFileURL("a.plist"), (Folder() / "a.plist").string());
  EXPECT_TRUE(fs::is_directory(Folder())) << "made at first use";
  for (const char* name : {"", ".", "..", "../x", "a/b"})
    EXPECT_FALSE(CopyPreferenceFileURL(name)) << name;
  EXPECT_FALSE(CopyXMLData("a.plist"));

  ::setenv("ZARVO_APPLICATION_SUPPORT", (root_ / "none").c_str(), 1);
  EXPECT_FALSE(CopyPreferenceFileURL("a.plist"));
  EXPECT_FALSE(Save("Draft"));
  ::setenv("ZARVO_APPLICATION_SUPPORT", root_.c_str(), 1);

  ASSERT_TRUE(Save("Draft"));
  fs::permissions(root_, fs::perms(0755));
  const pid_t child = ::fork();
  if (child == 0) {  // without the superuser's rights the folder is read-only
    if (::getuid() == 0 ? ::setuid(65534) != 0 : ::chmod(Folder().c_str(), 0555) != 0) ::_exit(2);
    ::_exit(Save("Final") || Load("Draft") != 1);
  }
  int status = -1;
  ::waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  fs::permissions(Folder(), fs::perms(0755));
}

TEST_F(Store, UserPreferencesReportFailedWrites) {
  const Value preferences(Dictionary{{"volume", Value("loud")}});
  const fs::path config = root_ / "config";
  EXPECT_EQ(Value(CopyUserPreferences("my.plist").value()), Value(Dictionary()));
  EXPECT_TRUE(WriteUserPreferences("my.plist", preferences));
  EXPECT_EQ(Value(CopyUserPreferences("my.plist").value()), preferences);
  EXPECT_EQ(fs::status(config / "my.plist").permissions(), fs::perms(0600));
  std::ofstream(config / "my.plist") << "junk";
  fs::create_directories(config / "taken.plist" / "x");
  testing::internal::CaptureStderr();
  EXPECT_EQ(Value(CopyUserPreferences("my.plist").value()), Value(Dictionary()));
  EXPECT_FALSE(WriteUserPreferences("taken.plist", preferences));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "WriteUserPreferences() failed (21)\n");
  EXPECT_EQ(Entries(config), 2) << "no temporary file stays";

  ::setenv("XDG_CONFIG_HOME", "/dev/null/none", 1);
  EXPECT_FALSE(CopyUserPreferences("my.plist"));
  EXPECT_FALSE(WriteUserPreferences("my.plist", preferences));
}

TEST_F(Store, ParallelWritersLoseNothingAndReadersSeeWholeFiles) {
  const Array none;
  ASSERT_TRUE(saveWatermarkList(kCollection, &none));
  constexpr int writers = 4, each = 10;
  for (int writer = 0; writer < writers; ++writer) {
    if (::fork() != 0) continue;
    for (int i = 0; i < each; ++i)
      if (!Save(std::to_string(writer) + "-" + std::to_string(i))) ::_exit(1);
    ::_exit(0);
  }
  int failed = 0, left = writers;
  while (left > 0) {
    Array names;
    ASSERT_EQ(loadWatermarkList(kCollection, nullptr, &names), 1);
    for (int status; ::waitpid(-1, &status, WNOHANG) > 0; --left) failed += status != 0;
    ::usleep(1000);
  }
  EXPECT_EQ(failed, 0);
  const std::optional<Value> file = CopyXMLData(kCollection);
  EXPECT_EQ(file->AsDictionary()->size(), std::size_t{writers * each + 1});
  EXPECT_EQ(Entries(Folder()), 1);
}

TEST_F(Store, NewOnesAreOpenToJobsAndOldOnesStayAsTheyWere) {
  const mode_t umask_before = ::umask(077);
  EXPECT_TRUE(Save("Draft"));
  ::umask(umask_before);
  EXPECT_EQ(fs::status(Folder()).permissions(), fs::perms(0755));
  EXPECT_EQ(fs::status(File()).permissions(), fs::perms(0644));

  constexpr gid_t kGroup = 7;
  const fs::path target = root_ / "elsewhere.plist";
  fs::rename(File(), target);
  fs::create_symlink("../elsewhere.plist", File());
  fs::permissions(target, fs::perms(0664));
  const bool moved = ::chown(target.c_str(), static_cast<uid_t>(-1), kGroup) == 0;
  EXPECT_TRUE(Save("Final"));
  struct stat info {};
  EXPECT_TRUE(fs::is_symlink(File()));
  EXPECT_EQ(::stat(target.c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 0777, 0664u);
  EXPECT_TRUE(!moved || info.st_gid == kGroup);
  EXPECT_EQ(Load("Final"), 1);
}

TEST_F(Store, KilledWritersLeaveNothingThatStays) {
  ASSERT_TRUE(Save("Draft"));
  for (const char* left : {".marks.plist.zarvo-a1B2c3", ".logo.png.zarvo-000000", ".zarvo-lock"})
    std::ofstream(Folder() / left) << "half";
  std::ofstream(Folder() / ".not.ours") << "stays";
  EXPECT_TRUE(Save("Final"));
  EXPECT_EQ(Entries(Folder()), 2);
}

TEST_F(Store, OnlyWhoMayWriteKeepsOthersOut) {
  ASSERT_TRUE(Save("Draft"));
  const UniqueFd folder(::open(Folder().c_str(), O_RDONLY));
  ASSERT_EQ(::flock(folder.get(), LOCK_EX), 0);  // anybody can do that
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_TRUE(Save("Final"));
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(8));
  const FolderLock writer(Folder());
  ASSERT_TRUE(writer);
  EXPECT_EQ(fs::status(Folder() / FolderLock::kLockFile).permissions(), fs::perms(0600));
  EXPECT_FALSE(Save("Lost"));
  EXPECT_EQ(errno, EAGAIN);
}

TEST_F(Store, ATenMegabyteListIsReadInTime) {
  const std::string entry = "</key><dict><key>filePath</key><string>" + std::string(1000, 'x') +
                            "</string><key>angle</key><real>9</real></dict>";
  std::string xml = "<plist version=\"1.0\"><dict>";
  for (int i = 0; i < 10000; ++i) xml.append("<key>").append(std::to_string(i)).append(entry);
  Write(xml + "</dict></plist>");
  const auto begin = std::clock();
  EXPECT_TRUE(Save("one more"));
  EXPECT_EQ(Load("9999"), 1);
  EXPECT_LT(std::clock() - begin, 5 * CLOCKS_PER_SEC);
  EXPECT_EQ(data_.angle, 9);
}

}  // namespace
}  // namespace zarvo
