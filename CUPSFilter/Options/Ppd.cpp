// SPDX-License-Identifier: Apache-2.0
// The spooler's library calls its PPD functions deprecated; it still ships them, and the PPD is
// what every queue of these printers has.
#include "CUPSFilter/Options/Ppd.h"

#include <cups/ppd.h>
#include <cups/pwg.h>
#include <fcntl.h>
#include <strings.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <fstream>

#include "Platform/Log.h"
#include "Platform/UniqueFd.h"

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

namespace zarvo {
namespace {

/// While it lives, leaks are the library's: it never frees some names and options that it makes
/// when it maps a job's options to the PPD's choices.
struct LibraryLeaks {
#ifdef __SANITIZE_ADDRESS__
  __lsan::ScopedDisabler disabler;
#else
  LibraryLeaks() {}
#endif
};

/// Real ones have a tenth of it; the library's time grows with the square of the options.
constexpr off_t kMaxPpdBytes = 4 << 20;
constexpr off_t kAlwaysReadBytes = 512 << 10;
constexpr int kMostOptions = 5000;  // with groups and sizes; real ones have a few hundred

/// Without exponent; 64 characters hold the largest.
std::string Decimal(float number) {
  char text[64];
  return {text, std::to_chars(text, text + sizeof text, number, std::chars_format::fixed).ptr};
}

std::optional<std::string> CustomValue(const ppd_cparam_t& parameter) {
  switch (parameter.type) {
    case PPD_CUSTOM_CURVE:
      return Decimal(parameter.current.custom_curve);
    case PPD_CUSTOM_INVCURVE:
      return Decimal(parameter.current.custom_invcurve);
    case PPD_CUSTOM_POINTS:
      return Decimal(parameter.current.custom_points);
    case PPD_CUSTOM_REAL:
      return Decimal(parameter.current.custom_real);
    case PPD_CUSTOM_INT:
      return std::to_string(parameter.current.custom_int);
    case PPD_CUSTOM_PASSCODE:
    case PPD_CUSTOM_PASSWORD:
    case PPD_CUSTOM_STRING:
      // The library keeps all three kinds of text in one member.
      if (parameter.current.custom_string != nullptr) return parameter.current.custom_string;
      break;
    default:
      break;
  }
  return std::nullopt;
}

/// Why the library should not be given the file, which it may read for minutes or for ever; empty
/// when it may.
std::string UnreasonableFile(const char* file) {
  struct stat about {};
  if (stat(file, &about) != 0) return "";
  if (S_ISFIFO(about.st_mode) || S_ISSOCK(about.st_mode)) return "it is no file";
  if (about.st_size > kMaxPpdBytes)
    return "it has more than " + std::to_string(kMaxPpdBytes) + " bytes";
  if (about.st_size < kAlwaysReadBytes) return "";
  // What the library looks for anew, among all there are already, for each one that comes.
  std::ifstream stream(file);
  int slow = 0;
  for (std::string line; std::getline(stream, line);)
    slow += line.starts_with("*OpenUI") || line.starts_with("*OpenGroup") ||
            line.starts_with("*JCLOpenUI") || line.starts_with("*PaperDimension");
  return slow > kMostOptions ? "it has more than " + std::to_string(kMostOptions) + " options" : "";
}

/// The library takes no file that begins with a byte-order mark, and editors put one there. A PPD
/// of ours is read behind it; others stay unread, as their jobs always were.
ppd_file_t* OpenBehindMark(const char* file) {
  UniqueFd descriptor(open(file, O_RDONLY | O_CLOEXEC));
  char start[3];
  if (!descriptor || read(descriptor.get(), start, sizeof start) != sizeof start ||
      std::string_view(start, sizeof start) != "\xef\xbb\xbf")
    return nullptr;
  ppd_file_t* ppd = ppdOpenFd(descriptor.release());  // closes it
  if (ppd == nullptr || ppdFindAttr(ppd, "ZRVFailClosed", nullptr) != nullptr) return ppd;
  ppdClose(ppd);
  return nullptr;
}

}  // namespace

std::optional<std::pair<float, float>> PaperOfName(const std::string& name) {
  const pwg_media_t* paper = pwgMediaForPWG(name.c_str());
  if (paper == nullptr) paper = pwgMediaForPPD(name.c_str());
  if (paper == nullptr) paper = pwgMediaForLegacy(name.c_str());
  if (paper == nullptr) return std::nullopt;
  constexpr float kPwgUnitsPerPoint = 2540.0F / 72;
  return std::pair(static_cast<float>(paper->width) / kPwgUnitsPerPoint,
                   static_cast<float>(paper->length) / kPwgUnitsPerPoint);
}

void Ppd::Closer::operator()(ppd_file_s* file) const { ppdClose(file); }

Ppd Ppd::Open(const char* file) {
  Ppd ppd;
  if (file == nullptr) return ppd;
  ppd.name_ = file;
  ppd.fault_ = UnreasonableFile(file);
  if (!ppd.fault_.empty()) {
    LogLine("DEBUG: PPD \"%s\" not used, %s; printing with Letter page defaults", file,
            ppd.fault_.c_str());
    return ppd;
  }
  ppd.file_.reset(ppdOpenFile(file));
  if (!ppd) {
    int line = 0;
    const ppd_status_t status = ppdLastError(&line);
    ppd.file_.reset(OpenBehindMark(file));
    if (ppd) {
      LogLine("WARNING: PPD \"%s\" begins with a byte-order mark; save it without one", file);
      return ppd;
    }
    if (access(file, F_OK) == 0 || (errno != ENOENT && errno != ENOTDIR))
      ppd.fault_ = "line " + std::to_string(line) + ": " + ppdErrorString(status);
    LogLine("DEBUG: PPD \"%s\" not used, line %d: %s; printing with Letter page defaults", file,
            line, ppdErrorString(status));
  }
  return ppd;
}

void Ppd::Mark(int num_options, cups_option_t* options) {
  if (file_ == nullptr) return;
  const LibraryLeaks leaks;
  ppdMarkDefaults(file_.get());
  cupsMarkOptions(file_.get(), num_options, options);
}

void Ppd::MarkChoice(const char* option, const char* choice) {
  if (file_ != nullptr) ppdMarkOption(file_.get(), option, choice);
}

std::optional<PpdPageSize> Ppd::MarkedPageSize() const {
  const ppd_size_t* size = file_ != nullptr ? ppdPageSize(file_.get(), nullptr) : nullptr;
  if (size == nullptr) return std::nullopt;
  return PpdPageSize{size->width, size->length, size->left, size->bottom, size->right, size->top};
}

bool Ppd::IsMarked(const char* option, const char* choice) const {
  return file_ != nullptr && ppdIsMarked(file_.get(), option, choice) != 0;
}

bool Ppd::HasOption(const char* option) const {
  return file_ != nullptr && ppdFindOption(file_.get(), option) != nullptr;
}

bool Ppd::HasChoice(const char* option, const char* choice) const {
  ppd_option_t* found = file_ != nullptr ? ppdFindOption(file_.get(), option) : nullptr;
  return found != nullptr && ppdFindChoice(found, choice) != nullptr;
}

bool Ppd::TakesCustom(const char* option) const {
  return file_ != nullptr && (ppdFindCustomOption(file_.get(), option) != nullptr ||
                              (strcasecmp(option, "PageSize") == 0 && file_->variable_sizes != 0));
}

std::vector<std::string> Ppd::OptionNames() const {
  std::vector<std::string> names;
  if (file_ == nullptr) return names;
  for (const ppd_option_t* option = ppdFirstOption(file_.get()); option != nullptr;
       option = ppdNextOption(file_.get()))
    names.emplace_back(option->keyword);
  return names;
}

std::vector<std::string> Ppd::Choices(const char* option) const {
  std::vector<std::string> choices;
  const ppd_option_t* found = file_ != nullptr ? ppdFindOption(file_.get(), option) : nullptr;
  for (int i = 0; found != nullptr && i < found->num_choices; ++i)
    choices.emplace_back(found->choices[i].choice);
  return choices;
}

std::vector<std::optional<std::string>> Ppd::CustomValues(const char* option) const {
  std::vector<std::optional<std::string>> values;
  ppd_coption_t* custom = file_ != nullptr ? ppdFindCustomOption(file_.get(), option) : nullptr;
  if (custom == nullptr || !IsMarked(option, "Custom")) return values;
  for (const ppd_cparam_t* parameter = ppdFirstCustomParam(custom); parameter != nullptr;
       parameter = ppdNextCustomParam(custom))
    values.push_back(CustomValue(*parameter));
  return values;
}

bool Ppd::IsTrue(const char* keyword) const {
  const std::vector<PpdAttribute> found = Attributes(keyword);
  return std::any_of(found.begin(), found.end(),
                     [](const PpdAttribute& attribute) { return attribute.value == "True"; });
}

Ppd::Hidden Ppd::HidesTrue(const std::string& keyword) const {
  if (fault_.empty()) return Hidden::kNo;
  struct stat about {};
  if (stat(name_.c_str(), &about) != 0 || S_ISFIFO(about.st_mode) || S_ISSOCK(about.st_mode))
    return Hidden::kUnknown;
  std::ifstream stream(name_);
  std::string start(kMaxPpdBytes + 1, '\0');
  if (!stream.read(start.data(), kMaxPpdBytes + 1) && !stream.eof()) return Hidden::kUnknown;
  start.resize(static_cast<std::size_t>(stream.gcount()));
  for (std::size_t at = start.find("*" + keyword + ":"); at != std::string::npos;
       at = start.find("*" + keyword + ":", at + 1)) {
    const std::size_t value = start.find_first_not_of(" \t", at + keyword.size() + 2);
    const bool begins_line = at == 0 || start[at - 1] == '\n' || start[at - 1] == '\r';
    if (begins_line && value != std::string::npos && start.compare(value, 4, "True") == 0)
      return Hidden::kYes;
  }
  return start.size() > kMaxPpdBytes ? Hidden::kUnknown : Hidden::kNo;
}

std::vector<PpdAttribute> Ppd::Attributes(const char* keyword) const {
  std::vector<PpdAttribute> attributes;
  if (file_ == nullptr) return attributes;
  for (const ppd_attr_t* found = ppdFindAttr(file_.get(), keyword, nullptr); found != nullptr;
       found = ppdFindNextAttr(file_.get(), keyword, nullptr))
    attributes.push_back({found->spec, found->value != nullptr ? found->value : ""});
  return attributes;
}

int Ppd::ColorDevice() const { return file_ != nullptr ? file_->color_device : 0; }

int Ppd::LanguageLevel() const { return file_ != nullptr ? file_->language_level : 0; }

}  // namespace zarvo
