// SPDX-License-Identifier: Apache-2.0
// zarvo watermark: the machine-wide store of watermarks.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <nlohmann/json.hpp>
#include <numbers>

#include "Platform/AtomicFile.h"
#include "Platform/Log.h"
#include "Platform/Text.h"
#include "Source/CFAdditions.h"
#include "Source/DrawHelper.h"
#include "Source/FaxCover.h"
#include "Source/Preferences.h"
#include "Source/TicketNames.h"
#include "Source/WatermarkSupport.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/system/Ghostscript.h"
#include "Tools/zarvo/system/PublishedChoices.h"
#include "Tools/zarvo/system/Queues.h"
#include "Tools/zarvo/system/Run.h"
#include "Tools/zarvo/system/WatermarkFont.h"
#include "Tools/zarvo/ticket/TicketText.h"

namespace zarvo {
extern const std::string_view SamplePage;  // SamplePage.ps
}

namespace zarvo::tool {
namespace {

namespace fs = std::filesystem;

/// Jobs count from 2 and never reach the first entry; it stands for no watermark.
constexpr const char* kFirstEntry = "None";
/// The store's own entry, which holds the list.
constexpr const char* kListEntry = "WatermarkListEntries";

struct WatermarkOptions {
  std::string name;   ///< or the text of a new one
  std::string label;  ///< the name of a text when it is not to be the text
  std::string file;
  bool fax = false;
  bool json = false;
  bool in_place = false;
  std::string font = "Helvetica-Bold";
  std::string color = "#b0b0b0";
  int size = 72;
  int angle = 45;
  int scale = 100;
  int density = 30;
  std::optional<double> x;
  std::optional<double> y;
  std::string place = "background";
  std::string output;
  std::string queue;

  const char* collection() const { return fax ? kFaxImageCollection : kWatermarkCollection; }
};

std::string StorePath(const WatermarkOptions& options) {
  return CopyPreferenceFileURL(options.collection()).value_or(options.collection());
}

int CannotWrite(const WatermarkOptions& options) {
  if (errno == EAGAIN)
    return Fail(StorePath(options), "another program has been changing it for ten seconds",
                "Try again when that has ended");
  return Fail(StorePath(options), "the store cannot be written",
              "Run the command as root, for example with sudo");
}

std::vector<std::string> Names(const WatermarkOptions& options) {
  Array list;
  loadWatermarkList(options.collection(), nullptr, &list);
  std::vector<std::string> names;
  for (const Value& entry : list)
    names.push_back(entry.AsString() != nullptr ? *entry.AsString() : "");
  return names;
}

std::string Describe(const WatermarkData& data) {
  char text[200];
  if (data.textString[0] != '\0') {
    std::snprintf(text, sizeof text, "text, %.80s %d pt, %d degrees, at %.0f %.0f", data.fontName,
                  data.fontSize, data.angle, data.xPos, data.yPos);
    return text;
  }
  return "image, " + std::to_string(data.scale) + " %, " + data.filePath;
}

/// Whether a watermark or a font may have the name; tells why not.
bool MayBeNamed(const WatermarkOptions& options, const std::string& name) {
  const std::vector<std::string> names = Names(options);
  if (name != (names.empty() ? kFirstEntry : names[0]) && name != kListEntry) return true;
  Fail(name, "is a name that the store itself needs", "Take another one");
  return false;
}

int List(const WatermarkOptions& options) {
  const std::vector<std::string> names = Names(options);
  std::error_code error;
  if (names.empty() && fs::exists(StorePath(options), error))
    return Fail(StorePath(options), "cannot be read, or is damaged", "See \"zarvo doctor\"");
  nlohmann::ordered_json json = nlohmann::ordered_json::array();
  for (std::size_t i = 0; i < names.size(); ++i) {
    WatermarkData data{};
    const bool found = loadWatermarkData(options.collection(), &names[i], &data) == 1;
    const std::string what = found ? Describe(data) : i == 0 ? "no watermark" : "missing";
    if (options.json) {
      json.push_back({{"index", i + 1}, {"name", names[i]}, {"what", what}});
    } else {
      std::printf("%3zu  %s  (%s)\n", i + 1, PrintableText(names[i]).c_str(),
                  PrintableText(what).c_str());
    }
  }
  if (options.json)
    std::printf("%s\n", json.dump(2, ' ', false, nlohmann::json::error_handler_t::replace).c_str());
  return kExitOk;
}

bool ParseColor(const std::string& text, float* red, float* green, float* blue) {
  unsigned r = 0, g = 0, b = 0;
  int length = 0;
  if (std::sscanf(text.c_str(), "#%2x%2x%2x%n", &r, &g, &b, &length) != 3 || length != 7 ||
      text.size() != 7)
    return false;
  *red = static_cast<float>(r) / 255;
  *green = static_cast<float>(g) / 255;
  *blue = static_cast<float>(b) / 255;
  return true;
}

bool CopyText(const std::string& text, char* field, std::size_t size) {
  if (text.size() >= size) return false;
  std::memcpy(field, text.c_str(), text.size() + 1);
  return true;
}

/// Where a text begins so that its middle is that of a Letter page, which is near that of A4.
void Center(const WatermarkOptions& options, std::size_t characters, WatermarkData* data) {
  constexpr double kMiddleX = 306, kMiddleY = 396;
  constexpr double kCharacterWidth = 0.7;  // of the size; a capital of a bold font
  constexpr double kCapitalHeight = 0.7;
  const double angle = options.angle * std::numbers::pi / 180;
  const double half_width = kCharacterWidth * options.size * static_cast<double>(characters) / 2;
  const double half_height = kCapitalHeight * options.size / 2;
  data->xPos =
      options.x.value_or(kMiddleX - std::cos(angle) * half_width + std::sin(angle) * half_height);
  data->yPos =
      options.y.value_or(kMiddleY - std::sin(angle) * half_width - std::cos(angle) * half_height);
}

int Store(const WatermarkOptions& options, const WatermarkData& data, const std::string& name) {
  Data font;
  loadFontData(options.collection(), name, &font);
  if (!font.empty()) return Fail(name, "names a font of the store", "Take another name");
  if (!addWatermark(options.collection(), data, kFirstEntry)) return CannotWrite(options);
  return kExitOk;
}

int AddText(const WatermarkOptions& options) {
  WatermarkData data{};
  const std::optional<std::string> text = MakeString(options.name);
  if (!text || text->empty() || !CopyText(*text, data.textString, sizeof data.textString))
    return Fail(options.name, "is no text of 1 to 511 bytes");
  const std::optional<std::string> name = MakeString(options.label);
  if (!name || !CopyText(*name, data.filename, sizeof data.filename))
    return Fail(options.label, "is no name of up to 511 bytes");
  const std::string& key = name->empty() ? *text : *name;
  if (!MayBeNamed(options, key)) return kExitFailure;
  if (!CopyText(options.font, data.fontName, sizeof data.fontName) || options.font.empty() ||
      options.font.find_first_of(" /()<>[]{}%\t\r\n") != std::string::npos)
    return Fail(options.font, "is no PostScript font name", "Names look like Helvetica-Bold");
  if (!ParseColor(options.color, &data.fontColorRed, &data.fontColorGreen, &data.fontColorBlue))
    return Fail(options.color, "is no colour", "Colours look like #cc0000");
  data.fontColorAlpha = data.wellColorAlpha = 1;
  data.wellColorRed = data.fontColorRed;
  data.wellColorGreen = data.fontColorGreen;
  data.wellColorBlue = data.fontColorBlue;
  // A watermark that is not stored under its text is stored under its file's name, which a text has
  // no other use for.
  data.isTextWatermark = name->empty() ? 1 : 0;
  data.fontSize = options.size;
  data.angle = options.angle;
  data.density = options.density;
  data.scale = 100;
  const auto is_character = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
  const auto characters = std::count_if(text->begin(), text->end(), is_character);
  Center(options, static_cast<std::size_t>(characters), &data);
  return Store(options, data, key);
}

int AddImage(const WatermarkOptions& options) {
  std::error_code error;
  const fs::path source = fs::canonical(options.file, error);
  if (error) return Fail(options.file, error.message());
  const std::string name = options.name.empty() ? source.filename().string() : options.name;
  if (!MayBeNamed(options, name)) return kExitFailure;
  ChildRun decoding;
  decoding.arguments = {DrawHelperPath(), "image", "ppm", source};
  decoding.input = source;
  decoding.output = "/dev/null";
  std::string log;
  if (!RunChild(decoding, &log)) {
    const std::vector<Complaint> told = Complaints(log);
    return Fail(options.file, told.empty() ? ErrorLines(log) : told[0].text);
  }
  WatermarkData data{};
  fs::path image = source;
  if (!options.in_place) {
    // Jobs run as another user, who cannot look into people's folders.
    if (name.empty() || name[0] == '.' || name.find('/') != std::string::npos ||
        name.ends_with(".plist"))
      return Fail(name, "cannot name a file of the store", "Give another --name");
    // Both stores are in one folder.
    image = fs::path(StorePath(options)).parent_path() / ((options.fax ? "fax-" : "") + name);
    constexpr std::size_t kMaxImage = 256 << 20;
    const std::optional<std::string> bytes = ReadWholeFile(source, kMaxImage);
    if (!bytes) return Fail(options.file, std::strerror(errno));
    if (!WriteFileAtomically(image, *bytes, 0644)) return CannotWrite(options);
  }
  if (!CopyText(name, data.filename, sizeof data.filename) ||
      !CopyText(image, data.filePath, sizeof data.filePath))
    return Fail(options.file, "has too long a name");
  data.scale = options.scale;
  data.density = options.density;
  return Store(options, data, name);
}

/// Loads a watermark, or says that there is none of that name.
bool Load(const WatermarkOptions& options, WatermarkData* data) {
  if (loadWatermarkData(options.collection(), &options.name, data) == 1) return true;
  Fail(options.name, "no such watermark", "\"zarvo watermark list\" shows them");
  return false;
}

int Remove(const WatermarkOptions& options) {
  WatermarkData data{};
  const std::vector<std::string> names = Names(options);
  if (!MayBeNamed(options, options.name)) return kExitFailure;
  // A name whose entry is gone can still be taken off the list.
  if (std::find(names.begin(), names.end(), options.name) == names.end() && !Load(options, &data))
    return kExitFailure;
  if (!dropWatermark(options.collection(), options.name, &data)) return CannotWrite(options);
  const fs::path image = data.filePath;
  std::error_code error;
  if (data.filePath[0] != '\0' && image.parent_path() == fs::path(StorePath(options)).parent_path())
    fs::remove(image, error);
  return kExitOk;
}

int Font(const WatermarkOptions& options) {
  std::string file;
  if (!ReadInput(options.file, &file)) return kExitFailure;
  Data font;
  if (const Failure failure = PrinterFont(file, &font); !failure.empty())
    return Fail(options.file, failure);
  const std::string name = options.name.empty() ? FontName(font) : options.name;
  if (name.empty()) return Fail(options.file, "tells no name of the font", "Give --name");
  WatermarkData data{};
  if (!MayBeNamed(options, name)) return kExitFailure;
  if (loadWatermarkData(options.collection(), &name, &data) == 1)
    return Fail(name, "names a watermark", "Give another --name");
  if (!addWatermarkFont(options.collection(), name, font, kFirstEntry)) return CannotWrite(options);
  std::printf("%s\n", PrintableText(name).c_str());
  return kExitOk;
}

int Show(const WatermarkOptions& options) {
  WatermarkData data{};
  if (!Load(options, &data)) return kExitFailure;
  const std::unique_ptr<ScratchFolder> scratch = MakeScratchFolder();
  if (!scratch) return kExitFailure;
  Dictionary ticket;
  ticket.emplace(key::kWatermark, options.name);
  const WatermarkPlacement place = options.place == "background" ? kWatermarkBackground
                                   : options.place == "overlay"  ? kWatermarkOverlay
                                                                 : kWatermarkForeground;
  ticket.emplace(key::kWatermarkPlace, Number(std::int32_t{place}));
  std::vector<FlatOption> flat;
  if (const Failure failure = FlattenTicket(ticket, &flat); !failure.empty())
    return Fail(options.name, failure);
  if (!WriteFileAtomically(scratch->File("page.ps"), SamplePage, 0600))
    return Fail(scratch->File("page.ps"), std::strerror(errno));
  ChildRun filter;
  filter.environment = ChildEnvironment(*scratch);
  filter.arguments = {
      FilterPath(), "1", "zarvo", "watermark", "1", OptionText(flat), scratch->File("page.ps")};
  filter.output = scratch->File("job.prn");
  std::string log;
  if (!RunChild(filter, &log)) return Fail(filter.arguments[0], ErrorLines(log));
  if (const auto lost = Complaints(log); !lost.empty()) return Fail(options.name, lost[0].text);
  const Stream made(std::fopen(scratch->File("job.prn").c_str(), "rbe"));
  PostScriptFiles split;
  Failure failure = made ? SplitJob(made.get(), *scratch, {}, &split) : std::strerror(errno);
  Drawing drawing;
  drawing.inputs = split.files;
  drawing.device = "png16m";
  drawing.output = scratch->File("page-%d.png");
  drawing.resolution = 72;
  if (failure.empty()) failure = Draw(drawing, *scratch);
  if (!failure.empty()) return Fail(options.name, failure);
  const std::string target = options.output.empty() ? options.name + ".png" : options.output;
  return Deliver(scratch->File("page-1.png"), target);
}

int Publish(const WatermarkOptions& options) {
  QueuePpd queue;
  if (const Failure failure = queue.Fetch(options.queue); !failure.empty())
    return Fail(options.queue, failure);
  std::string ppd;
  if (!ReadInput(queue.path(), &ppd)) return kExitFailure;
  std::vector<PublishedChoice> choices;
  const std::vector<std::string> names = Names(options);
  for (std::size_t i = 1; i < names.size(); ++i) {
    if (names[i].find('"') != std::string::npos) {
      Fail(names[i], "has a double quote, which no PPD can hold", "Give it another name");
      continue;
    }
    choices.push_back({names[i], std::string(key::kWatermark) + "=" + TicketValue(names[i])});
  }
  std::string changed;
  if (const Failure failure = PublishChoices(ppd, "Watermark", choices, &changed); !failure.empty())
    return Fail(options.queue, failure);
  return InstallPpd(options.queue, changed);
}

CLI::App* AddCommand(CLI::App& app, const char* name, const char* summary, Action* action,
                     const std::shared_ptr<WatermarkOptions>& options,
                     int (*run)(const WatermarkOptions&)) {
  CLI::App* command = app.add_subcommand(name, summary);
  command->add_flag("--fax", options->fax, "those of fax cover sheets");
  command->callback([=] { *action = [=] { return run(*options); }; });
  return command;
}

}  // namespace

void SetUpWatermark(CLI::App& app, Action* action) {
  app.require_subcommand(1);
  const auto options = std::make_shared<WatermarkOptions>();
  AddCommand(app, "list", "Lists the watermarks", action, options, &List)
      ->add_flag("--json", options->json, "for programs");
  CLI::App* show = AddCommand(app, "show", "Draws a watermark on a page", action, options, &Show);
  show->add_option("name", options->name, "which one")->required();
  show->add_option("--place", options->place, "background, overlay or foreground")
      ->check(CLI::IsMember({"background", "overlay", "foreground"}))
      ->capture_default_str();
  show->add_option("--output", options->output, "PNG file to write; - for standard output");
  CLI::App* text =
      AddCommand(app, "add-text", "Adds or replaces a text", action, options, &AddText);
  text->add_option("text", options->name, "the text, which is its name too")->required();
  text->add_option("--name", options->label, "name, when it is not to be the text");
  text->add_option("--font", options->font, "PostScript name of the font")->capture_default_str();
  text->add_option("--size", options->size, "points")
      ->check(CLI::Range(1, 2000))
      ->capture_default_str();
  text->add_option("--angle", options->angle, "degrees counter-clockwise")
      ->check(CLI::Range(-360, 360))
      ->capture_default_str();
  text->add_option("--color", options->color, "#rrggbb")->capture_default_str();
  text->add_option("-x", options->x, "where it begins, points from the left; else it is centred");
  text->add_option("-y", options->y, "where it begins, points from the bottom");
  CLI::App* image =
      AddCommand(app, "add-image", "Adds or replaces an image", action, options, &AddImage);
  image->add_option("file", options->file, "PNG, JPEG, TIFF, GIF or BMP")->required();
  image->add_option("--name", options->name, "name, when it is not to be the file's");
  image->add_option("--scale", options->scale, "percent; at 100 a pixel is a point")
      ->check(CLI::Range(1, 10000))
      ->capture_default_str();
  image->add_flag("--in-place", options->in_place,
                  "leave the file where it is; jobs must be able to read it there");
  for (CLI::App* command : {text, image})
    command->add_option("--density", options->density, "percent, on fax cover sheets")
        ->check(CLI::Range(0, 100))
        ->capture_default_str();
  AddCommand(app, "remove", "Removes a watermark", action, options, &Remove)
      ->add_option("name", options->name, "which one")
      ->required();
  CLI::App* publish = app.add_subcommand("publish", "Offers the watermarks in a queue's dialogs");
  publish->callback([=] { *action = [=] { return Publish(*options); }; });
  publish->add_option("-q,--queue", options->queue, "queue, whose PPD gets them as choices")
      ->required();
  CLI::App* font =
      AddCommand(app, "font", "Stores a font that the printers lack", action, options, &Font);
  font->add_option("file", options->file, "PostScript font: PFA, PFB or Type 42")->required();
  font->add_option("--name", options->name, "name, when the file's is not wanted");
}

}  // namespace zarvo::tool
