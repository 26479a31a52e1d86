// SPDX-License-Identifier: Apache-2.0
// zarvo ticket: between what people write and what the spooler carries.
#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>

#include "Platform/Log.h"
#include "Platform/PropertyList.h"
#include "Source/TicketKeys.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/ticket/TicketCheck.h"
#include "Tools/zarvo/ticket/TicketText.h"

namespace zarvo::tool {
namespace {

struct TicketOptions {
  std::string input = "-";
  std::string output = "-";
  std::string format = "json";
  bool lines = false;
  bool secrets = false;
  bool quiet = false;
};

std::optional<Dictionary> Load(const std::string& input) {
  std::string text;
  if (!ReadInput(input, &text)) return std::nullopt;
  Dictionary ticket;
  const Failure failure = ReadTicket(text, &ticket);
  if (failure.empty()) return ticket;
  Fail(input == "-" ? "(stdin)" : input, failure);
  return std::nullopt;
}

int Encode(const TicketOptions& options) {
  const std::optional<Dictionary> ticket = Load(options.input);
  if (!ticket) return kExitFailure;
  std::vector<FlatOption> flat;
  if (const Failure failure = FlattenTicket(*ticket, &flat); !failure.empty())
    return Fail("ticket", failure);
  if (const std::string fault = SecretFault(*ticket); !fault.empty())
    std::fprintf(stderr, "zarvo: ticket: no queue should print this: %s\n",
                 PrintableText(fault).c_str());
  for (const TicketFinding& finding : CheckTicket(*ticket))
    std::fprintf(stderr, "zarvo: %s\n", PrintableText(finding.place + ": " + finding.text).c_str());
  std::string text;
  if (options.lines) {
    for (const FlatOption& option : flat) text += OptionText({option}) + "\n";
  } else {
    text = OptionText(flat) + "\n";
  }
  return WriteOutput(options.output, text);
}

int Decode(const TicketOptions& options) {
  const std::optional<Dictionary> ticket = Load(options.input);
  if (!ticket) return kExitFailure;
  const Dictionary shown = options.secrets ? *ticket : WithoutSecrets(*ticket);
  if (options.format == "json") return WriteOutput(options.output, TicketToJson(shown));
  const std::optional<std::string> xml = SerializePropertyList(shown);
  if (!xml) return Fail("ticket", "holds text that a property list cannot", "Take --format json");
  return WriteOutput(options.output, *xml);
}

int CheckFile(const TicketOptions& options) {
  const std::optional<Dictionary> ticket = Load(options.input);
  if (!ticket) return kExitFailure;
  std::vector<TicketFinding> findings = CheckTicket(*ticket);
  std::vector<FlatOption> flat;
  if (const Failure failure = FlattenTicket(*ticket, &flat); !failure.empty())
    findings.push_back({"no job can carry this", failure});
  if (!options.quiet) {
    for (const TicketFinding& finding : findings)
      std::printf("%s\n", PrintableText(finding.place + ": " + finding.text).c_str());
  }
  return findings.empty() ? kExitOk : kExitFindings;
}

const char* TypeWord(KeyType type) {
  switch (type) {
    case KeyType::kText:
      return "text";
    case KeyType::kNumber:
      return "number";
    case KeyType::kBoolean:
      return "boolean";
    case KeyType::kDate:
      return "date";
    case KeyType::kDictionary:
      return "group";
    case KeyType::kList:
      return "list";
    case KeyType::kAny:
      break;
  }
  return "any";
}

void PrintKeys(std::span<const TicketKey> keys, const std::string& above) {
  for (const TicketKey& key : keys) {
    const std::string path = above + key.name;
    std::string values;
    for (const CodeWord& word : key.words)
      values += (values.empty() ? "" : ", ") + std::to_string(word.code) + " " + word.word;
    std::printf("%s\t%s\t%s%s%s\n", path.c_str(), TypeWord(key.type), key.meaning,
                values.empty() ? "" : ": ", values.c_str());
    PrintKeys(key.members, path + "/");
  }
}

int Keys(const TicketOptions&) {
  PrintKeys(TopLevelKeys(), "");
  return std::fflush(stdout) == 0 ? kExitOk : Fail("(stdout)", "cannot be written");
}

void AddInput(CLI::App& app, const std::shared_ptr<TicketOptions>& options) {
  app.add_option("file", options->input,
                 "a ticket as JSON, property list or flattened options; - for standard input")
      ->capture_default_str();
}

CLI::App* Add(CLI::App& app, const char* name, const char* summary,
              const std::shared_ptr<TicketOptions>& options, Action* action,
              int (*run)(const TicketOptions&)) {
  CLI::App* command = app.add_subcommand(name, summary);
  command->callback([=] { *action = [=] { return run(*options); }; });
  return command;
}

}  // namespace

void SetUpTicket(CLI::App& app, Action* action) {
  app.require_subcommand(1);
  const auto options = std::make_shared<TicketOptions>();
  CLI::App* encode = Add(app, "encode",
                         "Writes a ticket as the options that carry it (PIN and "
                         "account included)",
                         options, action, &Encode);
  encode->add_flag("-l,--lines", options->lines, "one option a line");
  CLI::App* decode =
      Add(app, "decode", "Writes a ticket in its readable form", options, action, &Decode);
  decode->add_option("-f,--format", options->format, "json or plist")
      ->check(CLI::IsMember({"json", "plist"}))
      ->capture_default_str();
  decode->add_flag("--secrets", options->secrets, "show PIN and account instead of \"(hidden)\"");
  Add(app, "keys", "Lists every key with its type, its meaning and its values", options, action,
      &Keys);
  for (CLI::App* command : {encode, decode})
    command->add_option("--output", options->output, "file to write; - for standard output")
        ->capture_default_str();
  CLI::App* check =
      Add(app, "check", "Names misspelt keys and values out of range", options, action, &CheckFile);
  for (CLI::App* command : {encode, decode, check}) AddInput(*command, options);
  check->add_flag("-q,--quiet", options->quiet, "only the exit status");
  SetUpHouseTickets(app, action);
}

}  // namespace zarvo::tool
