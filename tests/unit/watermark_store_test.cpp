// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

#include "Source/Preferences.h"
#include "Source/WatermarkSupport.h"

namespace zarvo {
namespace {

namespace fs = std::filesystem;

constexpr char kCollection[] = "marks.plist";

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
  std::ptrdiff_t Entries() const {
    return std::distance(fs::directory_iterator(Folder()), fs::directory_iterator());
  }

  fs::path root_;
  std::error_code ignored_;
};

_WatermarkData TextWatermark(const char* text) {
  _WatermarkData data{};
  std::strcpy(data.textString, text);
  std::strcpy(data.filename, "unused.png");
  std::strcpy(data.filePath, "/a/\xC3\xA9.png");
  std::strcpy(data.fontName, "Times-Bold");
  data.xOffset = 0.1F;
  data.yOffset = -2.5F;
  data.fontColorRed = 0.25F;
  data.fontColorGreen = 1.0F / 3;
  data.fontColorBlue = 1;
  data.fontColorAlpha = 0.5F;
  data.wellColorRed = 0.7F;
  data.wellColorGreen = 0.8F;
  data.wellColorBlue = 0.9F;
  data.wellColorAlpha = 0.95F;
  data.angle = -45;
  data.density = 40;
  data.scale = 250;
  data.units = 1;
  data.fontSize = 72;
  data.isTextWatermark = 1;
  data.xPos = 100.1;
  data.yPos = -1.0 / 3;
  return data;
}

TEST_F(Store, EveryStoredFieldComesBack) {
  const _WatermarkData saved = TextWatermark("Draft \"<1>\"");
  ASSERT_TRUE(saveWatermarkData(kCollection, saved));
  _WatermarkData loaded{};
  const std::string name = saved.textString;
  ASSERT_EQ(loadWatermarkData(kCollection, &name, &loaded), 1);
  loaded.isTextWatermark = 1;  // not stored
  EXPECT_EQ(std::memcmp(&loaded, &saved, sizeof saved), 0);
  struct stat info {};
  ASSERT_EQ(::stat(File().c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 0444, 0444U) << "the filter runs as another user";

  const std::string missing = "Final";
  EXPECT_EQ(loadWatermarkData(kCollection, &missing, &loaded), 0);
  const _WatermarkData zero{};
  EXPECT_EQ(std::memcmp(&loaded, &zero, sizeof zero), 0);
  loaded.angle = 1;
  EXPECT_EQ(loadWatermarkData(kCollection, nullptr, &loaded), 0);
  EXPECT_EQ(loaded.angle, 0);
}

TEST_F(Store, OddEntriesKeepTheRecordSane) {
  Write(
      "<plist version=\"1.0\"><dict><key>x</key><dict>"
      "<key>textString</key><string>" +
      std::string(512, 'a') +
      "</string>"
      "<key>fontName</key><string>" +
      std::string(511, 'b') +
      "</string>"
      "<key>filename</key><integer>1</integer>"
      "<key>angle</key><real>-30.9</real><key>scale</key><real>1e300</real>"
      "<key>density</key><string>5</string><key>fontSize</key><integer>4294967297</integer>"
      "<key>xPos</key><real>nan</real><key>xOffset</key><real>1e300</real>"
      "<key>yPos</key><integer>7</integer></dict><key>y</key><string>no entry</string>"
      "</dict></plist>");
  _WatermarkData data = TextWatermark("kept");
  std::string name = "x";
  ASSERT_EQ(loadWatermarkData(kCollection, &name, &data), 1);
  EXPECT_STREQ(data.textString, "") << "a text that does not fit is empty";
  EXPECT_EQ(std::strlen(data.fontName), 511U);
  EXPECT_STREQ(data.filename, "unused.png");
  EXPECT_EQ(data.angle, -30);
  EXPECT_EQ(data.scale, 250) << "out of range";
  EXPECT_EQ(data.density, 40) << "a text is no number";
  EXPECT_EQ(data.fontSize, 72) << "must not wrap to 1";
  EXPECT_EQ(data.xPos, 100.1);
  EXPECT_EQ(data.xOffset, 0.1F);
  EXPECT_EQ(data.yPos, 7);
  name = "y";
  EXPECT_EQ(loadWatermarkData(kCollection, &name, &data), 0);
}

TEST_F(Store, ListsEntriesAndFontsShareOneFile) {
  const Data font{'%', '!', 0, 255};
  EXPECT_FALSE(storeFontData(kCollection, "Gothic", font)) << "fonts never start a file";
  EXPECT_FALSE(removeWatermarkData(kCollection, "Draft"));
  EXPECT_FALSE(fs::exists(File()));

  const Array names{Value("None"), Value("Caf\xC3\xA9")};
  ASSERT_TRUE(saveWatermarkList(kCollection, &names));
  ASSERT_TRUE(saveWatermarkData(kCollection, TextWatermark("Cafe\xCC\x81")));
  ASSERT_TRUE(storeFontData(kCollection, "Gothic", font));

  Array loaded, shown;
  const WatermarkBrowser browser = [&shown](const Array& all) { shown = all; };
  ASSERT_EQ(loadWatermarkList(kCollection, &browser, &loaded), 1);
  EXPECT_EQ(Value(loaded), Value(names));
  EXPECT_EQ(Value(shown), Value(names));
  _WatermarkData data{};
  EXPECT_EQ(loadWatermarkData(kCollection, loaded[1].AsString(), &data), 1)
      << "composed and decomposed names are one name";
  Data bytes{1};
  loadFontData(kCollection, "Gothic", &bytes);
  loadFontData(kCollection, "Caf\xC3\xA9", &bytes);
  loadFontData(kCollection, "missing", &bytes);
  EXPECT_EQ(bytes, (Data{1, '%', '!', 0, 255})) << "appended, and only data";

  EXPECT_TRUE(removeWatermarkData(kCollection, "Cafe\xCC\x81"));
  EXPECT_EQ(loadWatermarkData(kCollection, loaded[1].AsString(), &data), 0);
  ASSERT_EQ(loadWatermarkList(kCollection, nullptr, &loaded), 1);
  EXPECT_EQ(loaded.size(), 2U) << "removing leaves the list alone";

  _WatermarkData image = TextWatermark("Gothic");
  image.isTextWatermark = 0;
  std::strcpy(image.filename, "WatermarkListEntries");
  EXPECT_FALSE(saveWatermarkData(kCollection, image)) << "it would replace the list";
  EXPECT_EQ(loadWatermarkList(nullptr, nullptr, &loaded), 0);
  EXPECT_EQ(loadWatermarkList(kCollection, nullptr, nullptr), 0);
  EXPECT_FALSE(saveWatermarkList(kCollection, nullptr));
}

TEST_F(Store, DamagedFilesAreReportedAndKeptAside) {
  ASSERT_TRUE(saveWatermarkData(kCollection, TextWatermark("Draft")));
  const std::string whole = Read();
  const std::string broken[] = {"<plist><dict", whole.substr(0, whole.size() / 2), "",
                                "<plist version=\"1.0\"><array/></plist>"};
  for (const std::string& bytes : broken) {
    Write(bytes);
    testing::internal::CaptureStderr();
    Array names;
    EXPECT_EQ(loadWatermarkList(kCollection, nullptr, &names), 0);
    const std::string log = testing::internal::GetCapturedStderr();
    if (bytes.find("array") == std::string::npos) {
      EXPECT_TRUE(log.starts_with("CopyXMLData()::CFPropertyListCreateFromXMLData() error: "));
      EXPECT_EQ(log.find('\n'), log.size() - 1) << "one line";
    }
    EXPECT_FALSE(removeWatermarkData(kCollection, "Draft"));
    EXPECT_EQ(Read(), bytes) << "changes leave a damaged file alone";
    ASSERT_TRUE(saveWatermarkData(kCollection, TextWatermark("Draft")));
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
  EXPECT_FALSE(saveWatermarkData(kCollection, TextWatermark("Draft")));
  ::setenv("ZARVO_APPLICATION_SUPPORT", root_.c_str(), 1);

  ASSERT_TRUE(saveWatermarkData(kCollection, TextWatermark("Draft")));
  fs::permissions(root_, fs::perms(0755));
  const pid_t child = ::fork();
  if (child == 0) {  // without the superuser's rights the folder is read-only
    if (::getuid() == 0 ? ::setuid(65534) != 0 : ::chmod(Folder().c_str(), 0555) != 0) ::_exit(2);
    _WatermarkData data{};
    const std::string name = "Draft";
    ::_exit(saveWatermarkData(kCollection, TextWatermark("Final")) ||
            loadWatermarkData(kCollection, &name, &data) != 1);
  }
  int status = -1;
  ::waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  fs::permissions(Folder(), fs::perms(0755));
  EXPECT_EQ(Entries(), 1) << "no temporary file stays";
  fs::remove(File());

  // A folder in the file's place fails for the superuser too, whom permissions do not stop.
  fs::create_directories(File() / "x");
  EXPECT_FALSE(saveWatermarkData(kCollection, TextWatermark("Draft")));
  EXPECT_EQ(Entries(), 1) << "no temporary file stays";
}

TEST_F(Store, UserPreferencesReportFailedWrites) {
  const Value preferences(Dictionary{{"volume", Value("loud")}});
  EXPECT_EQ(Value(*CopyUserPreferences("my.plist")), Value(Dictionary()));
  EXPECT_TRUE(WriteUserPreferences("my.plist", preferences));
  EXPECT_EQ(Value(*CopyUserPreferences("my.plist")), preferences);
  std::ofstream(root_ / "config" / "my.plist") << "junk";
  testing::internal::CaptureStderr();
  EXPECT_EQ(Value(*CopyUserPreferences("my.plist")), Value(Dictionary()));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");

  fs::create_directories(root_ / "config" / "taken.plist" / "x");
  testing::internal::CaptureStderr();
  EXPECT_FALSE(WriteUserPreferences("taken.plist", preferences));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "WriteUserPreferences() failed (21)\n");

  ::setenv("XDG_CONFIG_HOME", "/dev/null/none", 1);
  EXPECT_FALSE(CopyUserPreferences("my.plist"));
  EXPECT_FALSE(WriteUserPreferences("my.plist", preferences));
}

TEST_F(Store, ParallelWritersLoseNothingAndReadersSeeWholeFiles) {
  ASSERT_TRUE(saveWatermarkList(kCollection, std::make_unique<Array>().get()));
  constexpr int writers = 4, each = 10;
  for (int writer = 0; writer < writers; ++writer) {
    if (::fork() != 0) continue;
    for (int i = 0; i < each; ++i) {
      const std::string name = std::to_string(writer) + "-" + std::to_string(i);
      if (!saveWatermarkData(kCollection, TextWatermark(name.c_str()))) ::_exit(1);
    }
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
  EXPECT_EQ(Entries(), 1);
}

TEST_F(Store, ATenMegabyteListIsReadInTime) {
  Dictionary file;
  Array names;
  const std::string padding(900, 'x');
  for (int i = 0; i < 10000; ++i) {
    const std::string name = "mark " + std::to_string(i);
    names.emplace_back(name);
    file.emplace(name, Value(Dictionary{{"filePath", Value(padding)}, {"angle", Number(i)}}));
  }
  ASSERT_TRUE(ChangeSharedFile(kCollection, MissingFile::kStartEmpty, [&](Dictionary& all) {
    all = std::move(file);
    return true;
  }));
  ASSERT_TRUE(saveWatermarkList(kCollection, &names));
  EXPECT_GT(fs::file_size(File()), 10U << 20);
  _WatermarkData data{};
  const std::string name = "mark 9999";
  const auto begin = std::clock();
  EXPECT_EQ(loadWatermarkData(kCollection, &name, &data), 1);
  EXPECT_LT(std::clock() - begin, 5 * CLOCKS_PER_SEC);
  EXPECT_EQ(data.angle, 9999);
}

}  // namespace
}  // namespace zarvo
