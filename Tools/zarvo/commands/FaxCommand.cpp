// SPDX-License-Identifier: Apache-2.0
// zarvo fax: the cover sheet of a fax as its receiver will see it.
#include <sys/wait.h>

#include <cerrno>
#include <cstring>
#include <memory>

#include "Platform/PropertyList.h"
#include "Source/CFAdditions.h"
#include "Source/DrawHelper.h"
#include "Source/FaxCover.h"
#include "Source/TicketNames.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/ticket/TicketText.h"

namespace zarvo::tool {
namespace {

struct Options {
  std::string settings = "-";
  std::string output = "cover.pdf";
};

int Preview(const Options& options) {
  std::string text;
  if (!ReadInput(options.settings, &text)) return kExitFailure;
  std::string error;
  std::optional<Dictionary> ticket = ReadTicket(text, &error);
  if (!ticket) return Fail(options.settings, error);
  // Who asks to see the cover wants one, whether or not the job does.
  Dictionary& fax = CFDictionaryGetDictionaryOrCreate(*ticket, key::kFaxOptions);
  fax.insert_or_assign(std::string(kFaxPrintCoverSheetProperty), Value::Boolean(true));
  ticket->emplace(key::kFaxRecipientList, Array());
  const std::optional<FaxCover> cover = FaxCoverFromTicket(*ticket);
  if (!cover) return Fail(options.settings, "asks for no cover sheet");
  std::optional<FaxCoverDrawing> helper = FaxCoverDrawing::Start(*cover, &error);
  if (!helper) return Fail("cover sheet", error);
  std::string pdf;
  char block[65536];
  while (const std::size_t got = std::fread(block, 1, sizeof block, helper->output()))
    pdf.append(block, got);
  const int status = helper->Wait();
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
    return Fail("cover sheet", "cannot be drawn", "The lines before this one tell why");
  return WriteOutput(options.output, pdf);
}

}  // namespace

void SetUpFax(CLI::App& app, Action* action) {
  app.require_subcommand(1);
  const auto options = std::make_shared<Options>();
  CLI::App* preview = app.add_subcommand("preview", "Draws the cover sheet as a PDF file");
  preview
      ->add_option("settings", options->settings,
                   "ticket with fax options and recipients; - for standard input")
      ->capture_default_str();
  preview->add_option("--output", options->output, "file to write; - for standard output")
      ->capture_default_str();
  preview->callback([=] { *action = [=] { return Preview(*options); }; });
}

}  // namespace zarvo::tool
