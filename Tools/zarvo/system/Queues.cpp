// SPDX-License-Identifier: Apache-2.0
// The spooler's library calls its PPD functions deprecated; it still ships them, and the PPD is
// what every queue of these printers has.
#include "Tools/zarvo/system/Queues.h"

#include <cups/cups.h>
#include <cups/ppd.h>

#include <algorithm>
#include <array>
#include <fstream>

#include "Platform/Phrase.h"
#include "Source/NearestName.h"
#include "Tools/zarvo/system/Spooler.h"

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace zarvo::tool {
namespace {

using IppAnswer = std::unique_ptr<ipp_t, decltype(&ippDelete)>;

/// What the spooler says of the queue; null when it does not answer.
IppAnswer AskQueue(const std::string& queue) {
  const SpoolerConnection spooler = ConnectToSpooler();
  if (!spooler) return {nullptr, &ippDelete};
  char uri[HTTP_MAX_URI];
  httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", 0,
                   "/printers/%s", queue.c_str());
  ipp_t* request = ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES);
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
  return {cupsDoRequest(spooler.get(), request, "/"), &ippDelete};
}

}  // namespace

Failure QueuePpd::Fetch(const std::string& queue) {
  const SpoolerConnection spooler = ConnectToSpooler();
  if (!spooler) return kNoAnswer;
  const char* path = cupsGetPPD2(spooler.get(), queue.c_str());
  if (path == nullptr) return QueueFault(queue);
  path_ = path;
  return "";
}

QueuePpd::~QueuePpd() {
  std::error_code error;
  if (!path_.empty()) std::filesystem::remove(path_, error);
}

Failure ListQueues(std::vector<std::string>* names) {
  const SpoolerConnection spooler = ConnectToSpooler();
  if (!spooler) return kNoAnswer;
  cups_dest_t* destinations = nullptr;
  const int count = cupsGetDests2(spooler.get(), &destinations);
  for (int i = 0; i < count; ++i) {
    if (destinations[i].instance == nullptr) names->emplace_back(destinations[i].name);
  }
  cupsFreeDests(count, destinations);
  return "";
}

std::string QueueFault(const std::string& queue) {
  std::string told = cupsLastErrorString();
  while (told.ends_with('.')) told.pop_back();
  std::vector<std::string> names;
  if (!ListQueues(&names).empty() || names.empty()) return told;
  if (std::find(names.begin(), names.end(), queue) != names.end()) return told;
  const std::string nearest = NearestName(queue, names);
  return nearest.empty() ? Phrase("there is no such queue")
                         : Phrase("there is no such queue; did you mean %1?", {nearest});
}

std::string DefaultQueue() {
  const char* name = cupsGetDefault();
  return name != nullptr ? name : "";
}

std::vector<std::string> OptionWords(const std::string& path, bool values) {
  const std::unique_ptr<ppd_file_t, decltype(&ppdClose)> ppd(ppdOpenFile(path.c_str()), &ppdClose);
  std::vector<std::string> words;
  for (ppd_option_t* option = ppd != nullptr ? ppdFirstOption(ppd.get()) : nullptr;
       option != nullptr; option = ppdNextOption(ppd.get())) {
    const std::string name = std::string(option->keyword) + "=";
    if (!values) words.push_back(name);
    for (int i = 0; values && i < option->num_choices; ++i) {
      const std::string choice = option->choices[i].choice;
      words.push_back(name + choice + (choice == "Custom" ? "." : ""));
    }
  }
  return words;
}

std::string QueueDefault(const std::string& queue, const std::string& option) {
  const std::string name = option + "-default";
  const IppAnswer answer = AskQueue(queue);
  ipp_attribute_t* attribute =
      answer ? ippFindAttribute(answer.get(), name.c_str(), IPP_TAG_ZERO) : nullptr;
  const char* value = attribute != nullptr ? ippGetString(attribute, 0, nullptr) : nullptr;
  return value != nullptr ? value : "";
}

bool IsPrinting(const std::string& queue) {
  const IppAnswer answer = AskQueue(queue);
  ipp_attribute_t* attribute =
      answer ? ippFindAttribute(answer.get(), "printer-state", IPP_TAG_ENUM) : nullptr;
  return attribute != nullptr && ippGetInteger(attribute, 0) == IPP_PSTATE_PROCESSING;
}

bool IsSaid(std::string_view option, const std::function<bool(const char*)>& has) {
  constexpr std::array<const char*, 3> kSame[] = {{"sides", "Duplex", nullptr},
                                                  {"media", "PageSize", "PageRegion"}};
  for (const auto& names : kSame) {
    const auto is_named = [&](const char* name) { return name != nullptr && option == name; };
    if (std::any_of(names.begin(), names.end(), is_named))
      return std::any_of(names.begin(), names.end(),
                         [&](const char* name) { return name != nullptr && has(name); });
  }
  return has(std::string(option).c_str());
}

Failure PpdFault(const std::string& path) {
  const std::unique_ptr<ppd_file_t, decltype(&ppdClose)> ppd(ppdOpenFile(path.c_str()), &ppdClose);
  if (ppd != nullptr) return "";
  int line = 0;
  const ppd_status_t status = ppdLastError(&line);
  return "line " + std::to_string(line) + ": " + ppdErrorString(status);
}

bool UsesOurFilter(const std::string& path) {
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("*cupsFilter") && line.find("zarvofilter") != std::string::npos)
      return true;
  }
  return false;
}

}  // namespace zarvo::tool
