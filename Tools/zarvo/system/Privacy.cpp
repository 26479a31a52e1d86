// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/system/Privacy.h"

#include <strings.h>

#include <algorithm>
#include <sstream>
#include <vector>

namespace zarvo::tool {
namespace {

struct Policy {
  std::string name;
  bool open = false;  // everybody has access to what is private
  std::vector<std::string> values;
};

std::vector<std::string> Words(const std::string& line) {
  std::istringstream stream(line.substr(0, line.find('#')));
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

bool Is(const std::string& word, const char* wanted) {
  return strcasecmp(word.c_str(), wanted) == 0;
}

std::string FaultOf(const Policy& policy) {
  const auto holds = [&](const char* value) {
    return std::any_of(policy.values.begin(), policy.values.end(),
                       [&](const std::string& word) { return Is(word, value); });
  };
  for (const char* option : kSecretOptions)
    if (policy.open || (!holds("all") && !holds(option)))
      return "policy " + policy.name + ": " + option;
  return "";
}

}  // namespace

std::string PrivacyFault(const std::string& configuration) {
  std::vector<Policy> policies;
  bool inside = false;
  std::istringstream stream(configuration);
  for (std::string line; std::getline(stream, line);) {
    const std::vector<std::string> words = Words(line);
    if (words.size() < 2) {
      inside = inside && !(words.size() == 1 && Is(words[0], "</Policy>"));
    } else if (Is(words[0], "<Policy")) {
      inside = true;
      policies.push_back({words[1].substr(0, words[1].find('>')), false, {}});
    } else if (inside && Is(words[0], "JobPrivateAccess")) {
      policies.back().open = std::any_of(words.begin() + 1, words.end(),
                                         [](const std::string& word) { return Is(word, "all"); });
    } else if (inside && Is(words[0], "JobPrivateValues")) {
      policies.back().values.assign(words.begin() + 1, words.end());
    }
  }
  if (policies.empty()) policies.push_back({"default", false, {}});
  for (const Policy& policy : policies)
    if (std::string fault = FaultOf(policy); !fault.empty()) return fault;
  return "";
}

}  // namespace zarvo::tool
