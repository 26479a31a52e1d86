// SPDX-License-Identifier: Apache-2.0
// zarvo doctor: is everything there that jobs need, and as the spooler wants it?
#include <sys/stat.h>
#include <unistd.h>
#include <CLI/CLI.hpp>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <sstream>

#include "CUPSFilter/FaxCover/PdfToPostScript.h"
#include "HouseTicket/HouseTicketStore.h"
#include "Platform/AtomicFile.h"
#include "Platform/Log.h"
#include "Platform/SpoolerUser.h"
#include "Source/CFAdditions.h"
#include "Source/DrawHelper.h"
#include "Source/FaxCover.h"
#include "Source/Preferences.h"
#include "Source/WatermarkSupport.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/Terminal.h"
#include "Tools/zarvo/system/Office.h"
#include "Tools/zarvo/system/Privacy.h"
#include "Tools/zarvo/system/Queues.h"
#include "Tools/zarvo/system/Run.h"

namespace zarvo::tool {
namespace {

namespace fs = std::filesystem;

enum class State { kGood, kNote, kWrong };

struct Check {
  State state;
  std::string what;
  std::string place;
  std::string text;    ///< what is wrong; empty when nothing is
  std::string remedy;  ///< a command or what else to do
};

class Examination {
 public:
  void Run() {
    CheckFilter();
    CheckHelper();
    CheckConfinement();
    CheckConverters();
    CheckOffice();
    CheckQueues();
    CheckPreviewButton();
    CheckPrivacy();
    CheckStores();
  }

  const std::vector<Check>& checks() const { return checks_; }

 private:
  void Good(std::string what, std::string place) {
    checks_.push_back({State::kGood, std::move(what), std::move(place), "", ""});
  }
  void Note(std::string what, std::string place, std::string text, std::string remedy) {
    checks_.push_back(
        {State::kNote, std::move(what), std::move(place), std::move(text), std::move(remedy)});
  }
  void Wrong(std::string what, std::string place, std::string text, std::string remedy) {
    checks_.push_back(
        {State::kWrong, std::move(what), std::move(place), std::move(text), std::move(remedy)});
  }

  /// What the spooler insists on before it runs a program or looks into its folder.
  bool SafeForSpooler(const char* what, const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
      Wrong(what, path, std::strerror(errno), "Install the package zarvo-filter");
      return false;
    }
    if (status.st_uid != 0) {
      Wrong(what, path, "does not belong to root; the spooler refuses it", "chown root " + path);
      return false;
    }
    if ((status.st_mode & (S_IWGRP | S_IWOTH | S_ISUID)) != 0) {
      Wrong(what, path, "others may write it, or it changes its user; the spooler refuses it",
            S_ISDIR(status.st_mode) ? "chmod 755 " + path : "chmod 555 " + path);
      return false;
    }
    if ((status.st_mode & S_IXOTH) == 0) {
      Wrong(what, path, "the spooler's user may not run or enter it", "chmod a+rx " + path);
      return false;
    }
    return true;
  }

  /// A program that is run without arguments tells its usage, if it can be run at all.
  void CheckRuns(const char* what, const std::string& path, const char* usage) {
    ChildRun child;
    child.arguments = {path};
    child.limit = std::chrono::seconds(10);
    std::string log;
    RunChild(child, &log);
    if (log.find(usage) != std::string::npos) return Good(what, path);
    Wrong(what, path, "does not run: " + ErrorLines(log), "Install the package zarvo-filter again");
  }

  void CheckFilter() {
    const fs::path filter = PdfConverters::DefaultFilterFolder() + "/zarvofilter";
    if (SafeForSpooler("filter folder", filter.parent_path()) && SafeForSpooler("filter", filter))
      CheckRuns("filter", filter, "job-id user title copies options");
  }

  static std::string HelperPath() {
    const std::string beside_filter = PdfConverters::DefaultFilterFolder() + "/zarvodraw";
    return access(beside_filter.c_str(), F_OK) == 0 ? beside_filter : DrawHelperPath();
  }

  void CheckHelper() {
    const std::string helper = HelperPath();
    if (access(helper.c_str(), X_OK) != 0)
      return Wrong("drawing helper", helper,
                   std::string(std::strerror(errno)) + "; no image watermarks, no fax covers",
                   "Install the package zarvo-filter again");
    CheckRuns("drawing helper", helper, "started by the print filter");
  }

  /// The helper locks itself in and tries what is forbidden then.
  void CheckConfinement() {
    for (const char* task : {"image", "page"}) {
      ChildRun child;
      child.arguments = {HelperPath(), "check", task};
      child.limit = std::chrono::seconds(10);
      std::string log;
      if (!RunChild(child, &log)) return;  // told by the check before
      CheckLayers(task, log);
    }
    CheckAppArmor();
  }

  void CheckLayers(const std::string& task, const std::string& log) {
    const std::string place = "drawing helper, " + task;
    const bool landlock = log.find("landlock on") != std::string::npos;
    if (!landlock)
      Note("confinement", place, "Landlock is not there; the other layers hold without",
           "Let the kernel's option lsm= name landlock, too");
    if (log.find("seccomp on") == std::string::npos)
      Wrong("confinement", place, "system calls cannot be filtered (seccomp)",
            "Use a kernel with seccomp filters, or let the container allow them");
    std::string possible;
    std::istringstream lines(log);
    for (std::string what, result; lines >> what >> result;) {
      const bool expected = what == "reading" && task == "page" && !landlock;
      if (result == "possible" && !expected) possible += (possible.empty() ? "" : ", ") + what;
    }
    if (possible.empty()) return Good("confinement", place);
    Wrong("confinement", place, "not refused: " + possible,
          "Install the package zarvo-filter again; if that does not help, report it");
  }

  void CheckAppArmor() {
    constexpr char kProfiles[] = "/sys/kernel/security/apparmor/profiles";
    std::string enabled;
    std::ifstream("/sys/module/apparmor/parameters/enabled") >> enabled;
    if (enabled != "Y")
      return Note("confinement", "AppArmor", "this kernel runs without it",
                  "Nothing, if that is meant; the other layers hold without");
    std::ifstream profiles(kProfiles);
    if (!profiles)
      return Note("confinement", "AppArmor", "only root sees which profiles are in force",
                  "sudo zarvo doctor");
    for (std::string line; std::getline(profiles, line);)
      if (line == "zarvofilter (enforce)") return Good("confinement", "AppArmor");
    Note("confinement", "AppArmor", "the profile of the filter is not in force",
         "apparmor_parser -r /etc/apparmor.d/zarvofilter /etc/apparmor.d/usr.sbin.cupsd");
  }

  void CheckConverters() {
    for (const char* name : {"pdftopdf", "pdftops", "pstops"}) {
      const std::string path = PdfConverters::DefaultFilterFolder() + "/" + name;
      if (access(path.c_str(), X_OK) == 0) {
        Good("converter", path);
      } else {
        Wrong("converter", path, "is missing; PDF jobs cannot be printed",
              "apt install cups cups-filters");
      }
    }
    const std::string gs = FindProgram("gs");
    if (!gs.empty()) return Good("converter", gs);
    Wrong("converter", "gs", "is missing; PDF jobs and previews need it",
          "apt install ghostscript");
  }

  void CheckQueues() {
    std::vector<std::string> names;
    if (!ListQueues(&names).empty())
      return Wrong("spooler", "cupsd", "does not answer", "systemctl start cups");
    bool used = false;
    for (const std::string& name : names) {
      QueuePpd ppd;
      if (!ppd.Fetch(name).empty() || !UsesOurFilter(ppd.path())) continue;
      used = true;
      const Failure fault = PpdFault(ppd.path());
      if (fault.empty()) {
        Good("queue", name);
      } else {
        Wrong("queue", name, "its PPD file is damaged, " + fault,
              "lpadmin -p " + name + " -P zarvo.ppd");
      }
      CheckRenderer(name);
    }
    if (!used)
      Note(
          "queue", "(all)", "no queue uses the filter",
          "lpadmin -p NAME -E -v socket://PRINTER -m PPD; \"lpinfo -m | grep -i zarvo\" tells PPD");
  }

  /// Other people's PINs, accounts and fax numbers are in the spooler's records of jobs.
  void CheckPrivacy() {
    const char* folder = std::getenv("CUPS_SERVERROOT");
    const std::string path = std::string(folder != nullptr ? folder : "/etc/cups") + "/cupsd.conf";
    std::ifstream file(path);
    if (!file)
      return Note("privacy", path, std::string("cannot be read: ") + std::strerror(errno),
                  "sudo zarvo doctor");
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    const std::string fault = PrivacyFault(text);
    if (fault.empty()) return Good("privacy", path);
    Note("privacy", path, "other people can read secrets of jobs, " + fault,
         std::string("Put into each <Policy>, a line each: ") + kPrivacyLines);
  }

  void CheckRenderer(const std::string& queue) {
    const std::string renderer = QueueDefault(queue, kRendererOption);
    if (renderer == kBestRenderer) return Good("PDF renderer", queue);
    const std::string option = std::string(kRendererOption) + "-default=" + kBestRenderer;
    Note("PDF renderer", queue,
         (renderer.empty() ? "none is chosen" : "is " + renderer) +
             "; long documents and see-through drawings take minutes, or print as one picture",
         "lpadmin -p " + queue + " -o " + option);
  }

  void CheckOffice() {
    const std::string program = OfficeProgram();
    if (!program.empty()) return Good("office documents", program);
    Note("office documents", "LibreOffice",
         "is not installed; \"zarvo print letter.odt\" and \"zarvo preview\" need it",
         "apt install --no-install-recommends libreoffice-writer-nogui libreoffice-calc-nogui "
         "libreoffice-impress-nogui");
  }

  /// GTK's dialogs have a button "Preview", which can open the desktop program.
  void CheckPreviewButton() {
    if (FindProgram("zarvo-desk").empty()) return;
    const char* home = std::getenv("HOME");
    const char* configuration = std::getenv("XDG_CONFIG_HOME");
    if (home == nullptr && configuration == nullptr) return;
    const std::string file =
        (configuration != nullptr ? configuration : home + std::string("/.config")) +
        std::string("/gtk-3.0/settings.ini");
    const std::optional<std::string> settings = ReadWholeFile(file.c_str(), 1 << 20);
    if (settings && settings->find("zarvo-desk") != std::string::npos)
      return Good("button \"Preview\"", file);
    Note("button \"Preview\"", file, "print dialogs open another program with it",
         "put into it, below [Settings]: gtk-print-preview-command=zarvo-desk --unlink "
         "--gtk-settings %s %f");
  }

  void CheckStores() {
    if (!spooler_)
      return Wrong("spooler", "its user", "there is none by that name",
                   "Correct User and Group in cups-files.conf");
    for (const char* collection : {kWatermarkCollection, kFaxImageCollection}) {
      const std::optional<std::string> path = CopyPreferenceFileURL(collection);
      if (!path)
        return Wrong("store", "the folder Zarvo of the machine-wide data",
                     "is missing and cannot be made", "Install the package zarvo-filter again");
      CheckStore(collection, *path);
    }
    CheckHouseTickets();
  }

  /// Tickets that jobs may name, each with all that it builds on.
  void CheckHouseTickets() {
    HouseTicketStore store = HouseTicketStore::Shared();
    struct stat status {};
    if (stat(store.path().c_str(), &status) != 0)
      return Note("store", store.path(), "is not there yet, jobs that name a house ticket stop",
                  "\"sudo zarvo ticket save\" makes it");
    if (!JobsMayRead(store.path()))
      return Wrong("store", store.path(), "the spooler's user cannot read it",
                   "chmod a+r " + store.path() + ", and a+x on the folders above it");
    std::string fault = store.Read();
    for (const std::string& name : store.Names()) {
      ResolvedHouseTicket resolved;
      if (fault.empty()) fault = ResolveHouseTicket(name, FindIn({&store}), &resolved);
    }
    if (fault.empty()) return Good("store", store.path());
    Wrong("store", store.path(), fault,
          "Save the ticket again, or restore the store from a backup");
  }

  void CheckStore(const char* collection, const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0)
      return Note("store", path, "is not there yet",
                  std::string("\"zarvo watermark add-text") +
                      (std::string_view(collection) == kFaxImageCollection ? " --fax" : "") +
                      "\" makes it");
    if (!JobsMayRead(path))
      return Wrong("store", path, "the spooler's user cannot read it",
                   "chmod a+r " + path + ", and a+x on the folders above it");
    if ((status.st_mode & (S_IWGRP | S_IWOTH)) != 0)
      Note("store", path, "others than its owner may change it", "chmod go-w " + path);
    const std::optional<Value> content = CopyXMLData(collection);
    if (!content || content->AsDictionary() == nullptr)
      return Wrong("store", path, "is damaged", "Restore it from a backup, or remove it");
    Array names;
    loadWatermarkList(collection, nullptr, &names);
    bool good = true;
    for (std::size_t i = 1; i < names.size(); ++i)  // the first one stands for none
      good = CheckWatermark(collection, path, names[i]) && good;
    if (good) Good("store", path);
  }

  bool CheckWatermark(const char* collection, const std::string& path, const Value& entry) {
    const std::string* name = entry.AsString();
    WatermarkData data{};
    if (name == nullptr || loadWatermarkData(collection, name, &data) != 1) {
      Wrong("watermark", name != nullptr ? *name : "(no text)",
            "is in the list of " + path + ", but not in the store",
            "zarvo watermark remove NAME, then add it again");
      return false;
    }
    if (data.textString[0] != '\0' || JobsMayRead(data.filePath)) return true;
    Wrong("watermark", *name, std::string("its image cannot be read by jobs: ") + data.filePath,
          "Put the file back, readable for all, or remove the watermark");
    return false;
  }

  bool JobsMayRead(const std::string& path) const {
    return spooler_ && SpoolerMay(*spooler_, path, R_OK);
  }

  std::vector<Check> checks_;
  const std::optional<SpoolerUser> spooler_ = FindSpoolerUser();
};

const char* StateWord(State state) {
  return state == State::kGood ? "ok" : state == State::kNote ? "note" : "WRONG";
}

int Doctor(bool json) {
  Examination examination;
  {
    Progress progress;
    progress.Stage("Looking at the installation");
    examination.Run();
  }
  const Palette palette(ColorWanted(STDOUT_FILENO));
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  bool wrong = false;
  for (const Check& check : examination.checks()) {
    wrong = wrong || check.state == State::kWrong;
    if (json) {
      list.push_back({{"state", StateWord(check.state)},
                      {"what", check.what},
                      {"place", check.place},
                      {"text", check.text},
                      {"remedy", check.remedy}});
      continue;
    }
    const char* color = check.state == State::kWrong  ? palette.bad
                        : check.state == State::kGood ? palette.good
                                                      : "";
    std::printf("%s%-5s%s  %s\n", color, StateWord(check.state),
                *color != '\0' ? palette.plain : "",
                PrintableText(check.what + ": " + check.place +
                              (check.text.empty() ? "" : ": " + check.text))
                    .c_str());
    if (!check.remedy.empty()) std::printf("       -> %s\n", PrintableText(check.remedy).c_str());
  }
  if (json)
    std::printf("%s\n", list.dump(2, ' ', false, nlohmann::json::error_handler_t::replace).c_str());
  return wrong ? kExitFindings : kExitOk;
}

}  // namespace

void SetUpDoctor(CLI::App& app, Action* action) {
  const auto json = std::make_shared<bool>(false);
  app.add_flag("--json", *json, "for programs");
  app.callback([=] { *action = [=] { return Doctor(*json); }; });
}

}  // namespace zarvo::tool
