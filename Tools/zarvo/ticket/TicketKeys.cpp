// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/ticket/TicketKeys.h"

#include <algorithm>
#include <limits>

namespace zarvo::tool {
namespace {

using enum KeyType;

constexpr std::int64_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t kHighest = std::numeric_limits<std::int32_t>::max();
constexpr std::string_view kPrefix = "com.zarvo.print.";

constexpr TicketKey Secret(TicketKey key) {
  key.secret = true;
  return key;
}
constexpr TicketKey Group(const char* name, const char* meaning,
                          std::span<const TicketKey> members) {
  return {name, kDictionary, meaning, 0, 0, {}, members};
}
constexpr TicketKey ListOf(const char* name, const char* meaning,
                           std::span<const TicketKey> members) {
  return {name, kList, meaning, 0, 0, {}, members};
}
constexpr TicketKey InXml(TicketKey key) {
  key.xml_only = true;
  return key;
}

constexpr CodeWord kOffOn[] = {{0, "off"}, {1, "on"}};

// Media.
constexpr CodeWord kStockSizes[] = {
    {1, "letter"}, {2, "legal"},      {3, "tabloid"},    {4, "a4"},      {5, "a3"},
    {11, "12x18"}, {14, "b4"},        {15, "sra3"},      {18, "a5"},     {20, "envelope-c5"},
    {40, "a6"},    {17, "statement"}, {21, "executive"}, {75, "custom"}, {46, "envelope-dl"},
};
constexpr CodeWord kStockTypes[] = {
    {1, "standard"},  {2, "transparency"}, {3, "preprinted"}, {8, "envelopes"}, {9, "labels"},
    {10, "recycled"}, {15, "custom1"},     {16, "custom2"},   {17, "custom3"},  {18, "custom4"},
    {19, "custom5"},  {20, "custom6"},     {21, "custom7"},   {24, "tabs"}};
constexpr CodeWord kStockColors[] = {
    {1, "white"},    {2, "blue"},     {3, "yellow"},    {4, "green"},    {5, "pink"},
    {6, "clear"},    {7, "buff"},     {8, "goldenrod"}, {9, "red"},      {11, "ivory"},
    {12, "gray"},    {13, "orange"},  {15, "custom1"},  {16, "custom2"}, {17, "custom3"},
    {18, "custom4"}, {19, "custom5"}, {20, "custom6"},  {21, "custom7"}};
constexpr CodeWord kCoatings[] = {
    {1, "glossy"}, {2, "high-gloss"}, {3, "semi-gloss"}, {4, "satin"}, {5, "matte"}};
constexpr CodeWord kCoatedSides[] = {{1, "both"}, {2, "front"}, {3, "back"}};
constexpr CodeWord kFinishes[] = {{1, "fine"}, {2, "medium"}, {3, "coarse"}};
constexpr CodeWord kGrains[] = {{1, "y-grain"}, {2, "x-grain"}};
constexpr CodeWord kPrePrinted[] = {{0, "blank"}, {1, "pre-printed"}, {2, "letter-head"}};
constexpr CodeWord kRecycled[] = {{0, "none"}, {1, "standard"}};
constexpr TicketKey kStock[] = {
    {"CoatedSides", kNumber, "which sides are coated", 1, 3, kCoatedSides},
    {"Coating", kNumber, "kind of coating", 1, 5, kCoatings},
    {"Color", kNumber, "colour", 1, 21, kStockColors},
    {"Description", kText, "free description"},
    {"Finish", kNumber, "surface finish", 1, 3, kFinishes},
    {"Grain", kNumber, "grain direction", 1, 2, kGrains},
    {"Length", kNumber, "length of a size without a code, 1/100 mm", 1, kHighest},
    {"Name", kText, "name under which the printer knows the stock"},
    {"OrderCount", kNumber, "sheets in an ordered set, such as tabs", 1, kHighest},
    {"PrePrinted", kNumber, "printed already", 0, 2, kPrePrinted},
    {"Punched", kNumber, "number of holes", 1, kHighest},
    {"Recycled", kNumber, "recycled stock", 0, 1, kRecycled},
    {"Size", kNumber, "stock size code", kLowest, 99, kStockSizes},
    {"Source", kNumber, "tray; 0 is the inserter behind the fuser", 0, 9},
    {"Type", kNumber, "kind of stock", 1, 24, kStockTypes},
    {"Weight", kNumber, "weight, g/m2", 1, kHighest},
    {"Width", kNumber, "width of a size without a code, 1/100 mm", 1, kHighest},
};

// Colour and image settings, of the job and of page exceptions.
constexpr CodeWord kTrapping[] = {{1, "all"}, {2, "off"}};
constexpr CodeWord kOverprint[] = {{1, "on"}, {2, "off"}};
constexpr CodeWord kRendering[] = {{1, "saturation"},
                                   {2, "relative-colorimetric"},
                                   {3, "absolute-colorimetric"},
                                   {4, "perceptual"},
                                   {5, "pure-text"},
                                   {6, "automatic"}};
constexpr CodeWord kAntiAliasing[] = {{1, "none"}, {2, "standard"}};
constexpr CodeWord kOutputColor[] = {{1, "monochrome-grayscale"}, {2, "color"}};
constexpr TicketKey kFullColor[] = {
    {"AntiAliasing", kNumber, "smoothing of edges", 1, 2, kAntiAliasing},
    {"BlackOverprint", kNumber, "black printed over colours", 1, 2, kOverprint},
    {"CMYKImages", kAny, "source profile of CMYK images: a code or a name"},
    {"CMYKTextGraphics", kAny, "source profile of CMYK text and graphics: a code or a name"},
    {"Contrast", kNumber, "contrast", kLowest, kHighest},
    {"CyanRed", kNumber, "balance from cyan to red", kLowest, kHighest},
    {"Destination", kAny, "destination profile: a code or a name"},
    {"GraphicsRendering", kNumber, "rendering intent of graphics", 1, 6, kRendering},
    {"GrayImages", kText, "source profile of gray images"},
    {"GrayTextGraphics", kText, "source profile of gray text and graphics"},
    {"Halftone", kNumber, "halftone; not sent to the printer", 0, 47},
    {"ImageRendering", kNumber, "rendering intent of images", 1, 6, kRendering},
    {"Lightness", kNumber, "lightness", kLowest, kHighest},
    {"MagentaGreen", kNumber, "balance from magenta to green", kLowest, kHighest},
    {"OutputColor", kNumber, "colour or grayscale", 1, 2, kOutputColor},
    {"RGBImages", kAny, "source profile of RGB images: a code or a name"},
    {"RGBTextGraphics", kAny, "source profile of RGB text and graphics: a code or a name"},
    {"Saturation", kNumber, "saturation", kLowest, kHighest},
    {"TRC", kText, "tone reproduction curve"},
    {"TextRendering", kNumber, "rendering intent of text", 1, 6, kRendering},
    {"Trapping", kNumber, "trapping", 1, 2, kTrapping},
    {"TrappingFastDirection", kNumber, "trap width across the feed", 0, kHighest},
    {"TrappingSlowDirection", kNumber, "trap width along the feed", 0, kHighest},
    {"YellowBlue", kNumber, "balance from yellow to blue", kLowest, kHighest},
};
constexpr CodeWord kInkColors[] = {
    {1, "red"}, {2, "green"}, {3, "blue"}, {4, "royal"}, {5, "use-ready"}};
constexpr CodeWord kMappedColors[] = {{1, "red"},     {2, "green"},  {3, "blue"},     {4, "cyan"},
                                      {5, "magenta"}, {6, "yellow"}, {7, "cardinal"}, {8, "royal"},
                                      {9, "black"},   {10, "ruby"},  {11, "violet"},  {12, "brown"},
                                      {13, "other"}};
constexpr CodeWord kMappings[] = {{1, "object-based"},
                                  {2, "pictorial"},
                                  {3, "presentation"},
                                  {4, "color-to-highlight"},
                                  {5, "monochrome-grayscale"}};
constexpr CodeWord kMismatches[] = {{1, "use-ready"}, {2, "abort"}, {3, "hold"}};
constexpr TicketKey kHighlightColor[] = {
    {"HighlightColorB", kNumber, "blue of a custom colour", 0, 255},
    {"HighlightColorG", kNumber, "green of a custom colour", 0, 255},
    {"HighlightColorH", kNumber, "hue of a custom colour", 0, 360},
    {"HighlightColorR", kNumber, "red of a custom colour", 0, 255},
    {"HighlightColorRGB", kNumber, "custom colour as RGB, else as HSV", 0, 1, kOffOn},
    {"HighlightColorS", kNumber, "saturation of a custom colour", 0, 255},
    {"HighlightColorV", kNumber, "value of a custom colour", 0, 255},
    {"HighlightMappingAlgorithm", kNumber, "mapping method", 1, 5, kMappings},
    {"HighlightMappingColor", kNumber, "colour that is mapped to it", 1, 13, kMappedColors},
    {"HighlightMismatchAction", kNumber, "when the colorant is not loaded", 1, 3, kMismatches},
    {"HiglightPrintingColor", kNumber, "colorant", 1, 5, kInkColors},  // the dialog's spelling
};
constexpr TicketKey kImageShift[] = {
    {"FullPrecision", kBoolean, "values are in 1/100 mm already"},
    {"Inches", kNumber, "values are in 1/100 inch, else in 1/10 mm", 0, 1, kOffOn},
    {"X1", kNumber, "shift to the right, side 1", kLowest, kHighest},
    {"X2", kNumber, "shift to the right, side 2", kLowest, kHighest},
    {"Y1", kNumber, "shift upwards, side 1", kLowest, kHighest},
    {"Y2", kNumber, "shift upwards, side 2", kLowest, kHighest},
};
constexpr TicketKey kInvertImage[] = {
    {"MirrorImage", kNumber, "mirror the page", 0, 1, kOffOn},
    {"NegativeImage", kNumber, "negative image", 0, 1, kOffOn},
};

// Special pages.
constexpr CodeWord kCoverSides[] = {{1, "none"}, {2, "front"}, {3, "back"}, {4, "both"}};
constexpr CodeWord kSides[] = {{1, "one-sided"}, {2, "long-edge"}, {3, "short-edge"}};
constexpr TicketKey kCover[] = {
    {"SidesImaged", kNumber, "which sides of the cover are printed", 1, 4, kCoverSides},
    Group("Stock", "the cover's paper", kStock),
};
constexpr TicketKey kInsert[] = {
    {"Quantity", kNumber, "number of sheets", 1, kHighest},
    {"StartPage", kNumber, "page after which they come", 0, kHighest},
    Group("Stock", "the sheets' paper", kStock),
};
constexpr CodeWord kHalftones[] = {
    {1, "85-lpi"},   {2, "106-lpi"},  {3, "125-lpi"},  {4, "134-lpi"},    {5, "156-lpi"},
    {6, "200-dpi"},  {7, "150-dpi"},  {8, "200-lpi"},  {9, "300-lpi"},    {10, "600-lpi"},
    {11, "300-dpi"}, {12, "600-dpi"}, {13, "175-dpi"}, {14, "stochastic"}};
constexpr TicketKey kException[] = {
    {"Antialiasing", kNumber, "smoothing of edges", 1, 2, kAntiAliasing},
    {"EndPage", kNumber, "last page", 1, kHighest},
    Group("FullColorOptionsPage", "colour settings", kFullColor),
    {"HalftoneScreen", kNumber, "halftone screen", 1, 47, kHalftones},
    {"LightenDarken", kNumber, "darkness", kLowest, kHighest},
    {"OutputColor", kNumber, "colour or grayscale", 1, 2, kOutputColor},
    {"SidesImaged", kNumber, "sides", 1, 3, kSides},
    {"StartPage", kNumber, "first page", 1, kHighest},
    Group("Stock", "the pages' paper", kStock),
    Group("com.zarvo.print.ImageShiftOptionsPage", "image shift", kImageShift),
};
constexpr TicketKey kForms[] = {
    {"CyclePages", kNumber, "pages after which the form starts again", 0, kHighest},
    {"FullPrecision", kBoolean, "offsets are in 1/100 mm already"},
    {"Inches", kNumber, "offsets are in 1/10 inch, else in mm", 0, 1, kOffOn},
    {"MergeWithString", kText, "stored form to print behind the pages"},
    {"NewFormString", kText, "name under which the job is stored as a form"},
    {"UseDocumentName", kNumber, "store it under the document's name", 0, 1, kOffOn},
    {"X1", kNumber, "offset to the right", kLowest, kHighest},
    {"Y1", kNumber, "offset upwards", kLowest, kHighest},
};

// The job.
constexpr CodeWord kJobTypes[] = {{1, "normal"},         {2, "hold"}, {3, "save"},
                                  {4, "print-and-save"}, {5, "fax"},  {6, "secure"},
                                  {7, "delayed"},        {8, "proof"}};
constexpr CodeWord kSaveDispositions[] = {{2, "print-and-save"}, {3, "save-only"}};
constexpr CodeWord kSavedFormats[] = {{1, "single-page-tiff"},
                                      {2, "multi-page-tiff"},
                                      {3, "pdf"},
                                      {4, "fast-reprint"},
                                      {5, "fast-reprint-and-dri"}};
constexpr TicketKey kJobType[] = {
    {"DelayedPrintTime", kDate, "when a delayed job is printed"},
    {"JobType", kNumber, "what becomes of the job", 1, 9, kJobTypes},
    {"MediaType", kNumber, "format of a saved job", 1, 5, kSavedFormats},
    {"SaveDisposition", kNumber, "whether a saved job is printed too", 1, 3, kSaveDispositions},
    {"SavedJobLocation", kText, "folder of the printer for a saved job"},
    {"SavedJobName", kText, "name of a saved job"},
    Secret({"SecurePrintPassword", kText, "PIN, up to 19 characters"}),
    {"UseJobName", kBoolean, "save it under the document's name"},
};
constexpr TicketKey kJtmlOptions[] = {
    {"JTMLOptionAll", kAny, "every section"},
    {"JTMLOptionCovers", kAny, "covers"},
    {"JTMLOptionExceptions", kAny, "page exceptions"},
    {"JTMLOptionInserts", kAny, "inserts"},
};

// Fax.
constexpr CodeWord kFaxResolutions[] = {{1, "standard"}, {2, "fine"}, {3, "superfine"}};
constexpr CodeWord kSendSpeeds[] = {{1, "forced-4800"}, {2, "14400"}, {3, "automatic"}};
constexpr CodeWord kNewResolutions[] = {{2, "600-dpi"}, {5, "200-dpi"}};
constexpr CodeWord kShowRecipients[] = {{1, "none"}, {2, "names"}, {3, "custom"}};
constexpr CodeWord kFaxSizes[] = {{1, "letter"}, {2, "a4"}};
constexpr TicketKey kFaxOptions[] = {
    {"ConfirmationSheet", kBoolean, "print a confirmation"},
    {"CoverSheet", kBoolean, "send a cover sheet"},
    {"CoverSheetNotes", kText, "notes on the cover"},
    Secret({"CreditCard", kText, "billing code, up to 16 bytes"}),
    {"CustomRecipientText", kText, "recipient text of the cover"},
    {"DialingPrefix", kText, "dialled before every number, up to 4 bytes"},
    {"LocalizedFaxLabel", kText, "label of the sender's fax number"},
    {"LocalizedFromLabel", kText, "heading of the sender"},
    {"LocalizedNotesLabel", kText, "heading of the notes"},
    {"LocalizedPhoneLabel", kText, "label of the sender's phone number"},
    {"LocalizedToLabel", kText, "heading of the recipients"},
    {"NewJobResolution", kNumber, "resolution of a job that brings its own header", 2, 5,
     kNewResolutions},
    {"Resolution", kNumber, "resolution", 1, 3, kFaxResolutions},
    {"SendSpeed", kNumber, "transmission speed", 1, 3, kSendSpeeds},
    {"SendTime", kDate, "when it is sent"},
    {"SenderEmailAddress", kText, "sender's e-mail address"},
    {"SenderFaxNumber", kText, "sender's fax number"},
    {"SenderName", kText, "sender's name"},
    {"SenderOrganization", kText, "sender's company"},
    {"SenderPhoneNumber", kText, "sender's phone number"},
    {"ShowRecipients", kNumber, "recipients on the cover", 1, 3, kShowRecipients},
    {"ShowSender", kBoolean, "sender on the cover"},
    {"ShowWatermark", kBoolean, "watermark on the cover"},
    {"Size", kNumber, "paper of the cover", 1, 2, kFaxSizes},
    {"WatermarkName", kText, "which watermark"},
};
constexpr TicketKey kRecipient[] = {
    {"EmailAddress", kText, "e-mail address"},
    {"FaxNumber", kText, "fax number as typed"},
    {"FaxNumberLabel", kText, "label of the fax number"},
    {"FirstName", kText, "given name"},
    {"LastName", kText, "family name"},
    {"Mailbox", kText, "mailbox on the printer"},
    {"Organization", kText, "company"},
    {"PhoneNumber", kText, "phone number"},
    {"UID", kText, "address-book record"},
};

// Top level.
constexpr CodeWord kActModes[] = {{1, "off"}, {2, "user"}, {3, "user-and-account"}};
constexpr CodeWord kActTypes[] = {{1, "none"}, {2, "general"}, {3, "group"}};
constexpr CodeWord kReadingOrders[] = {{1, "right-to-left"}, {2, "left-to-right"}};
constexpr CodeWord kFoldStaple[] = {{7, "fold"}, {8, "fold-and-staple"}};
constexpr CodeWord kPlacements[] = {{1, "background"}, {2, "overlay"}, {3, "foreground"}};
constexpr CodeWord kSeparators[] = {{1, "none"}, {2, "blank"}, {3, "imaged"}};
constexpr CodeWord kOutputBins[] = {{1, "automatic"}, {2, "top"},       {4, "stacker"},
                                    {5, "stacker-1"}, {6, "stacker-2"}, {8, "top-1"},
                                    {9, "top-2"}};
constexpr CodeWord kResolutions[] = {
    {1, "300x300"}, {2, "600x600"}, {3, "1200x600"}, {4, "1200x1200"}};
constexpr CodeWord kOpiInsertion[] = {{2, "insert"}, {3, "do-not-insert"}};
constexpr CodeWord kOpiPrescan[] = {
    {2, "no-pre-scan"}, {3, "pre-scan"}, {4, "pre-scan-and-gather"}};
constexpr CodeWord kOutputOrders[] = {{2, "same-order-face-down"},
                                      {3, "reverse-order-face-up"},
                                      {4, "same-order-face-up"},
                                      {5, "reverse-order-face-down"}};
constexpr CodeWord kEmulations[] = {{2, "normal"}, {3, "corvanta180-adjustable"}};
constexpr CodeWord kRotations[] = {{1, "rotate-0"}, {2, "rotate-180"}};
constexpr CodeWord kOffsets[] = {{2, "none"}, {3, "set"}, {4, "subset"}, {5, "set-and-subset"}};
constexpr CodeWord kSlipSheets[] = {{1, "off"}, {2, "on"}};
constexpr CodeWord kZFolds[] = {{38, "z-fold-1"}, {39, "z-fold-2"}};

constexpr TicketKey kTopLevel[] = {
    {"com.apple.print.JobInfo.PMJobName", kText, "the document's name"},
    InXml({"com.apple.print.PrintSettings.PMDuplexing", kNumber,
           "sides, when FinishingDuplex does not say", 1, 3, kSides}),
    Secret({"com.zarvo.Act.AID", kText, "account"}),
    {"com.zarvo.Act.AT", kNumber, "kind of account in mode \"user\"", 1, 3, kActTypes},
    {"com.zarvo.Act.On", kNumber, "accounting mode", 1, 3, kActModes},
    Secret({"com.zarvo.Act.UID", kText, "accounting user"}),
    InXml(Secret({"com.zarvo.Act.jtml.AID", kText, "account in the XML ticket"})),
    InXml({"com.zarvo.Act.jtml.On", kNumber,
           "accounting in the XML ticket, on only in mode \"user-and-account\"", 1, 3, kActModes}),
    InXml(Secret({"com.zarvo.Act.jtml.UID", kText, "accounting user in the XML ticket"})),
    {"com.zarvo.WMS.ZRVWM", kNumber, "watermark by its place in the list; 1 is none", 1, kHighest},
    {"com.zarvo.WMS.ZRVWMFPage", kNumber, "that watermark on the first page only", 0, 1, kOffOn},
    {"com.zarvo.WMS.ZRVWMFg", kNumber, "that watermark over the page, else behind", 0, 1, kOffOn},
    {"com.zarvo.print.watermark.FirstPageOnly", kNumber, "watermark on the first page only", 0, 1,
     kOffOn},
    {"com.zarvo.print.watermark.Option", kNumber, "where the watermark goes", 1, 3, kPlacements},
    {"com.zarvo.print.watermark.Watermark", kText, "watermark by its name"},
    {"com.zarvo.print.AdvancedBookletLayoutOrderStr", kNumber, "reading order of a booklet", 1, 2,
     kReadingOrders},
    {"com.zarvo.print.BookletDrawOutlines", kNumber, "frame around each booklet page", 0, 1,
     kOffOn},
    {"com.zarvo.print.BookletForceNewSize", kBoolean, "booklet on the job's stock size"},
    {"com.zarvo.print.BookletLayout", kBoolean, "booklet"},
    {"com.zarvo.print.Creep", kNumber, "creep for each sheet, 1/10 point", 0, kHighest},
    {"com.zarvo.print.Gutter", kNumber, "space between booklet pages, points", 0, kHighest},
    {"com.zarvo.print.RotateBooklet180Degrees", kBoolean, "turn booklet sheets"},
    {"com.zarvo.print.BannerPage", kBoolean, "banner page"},
    {"com.zarvo.print.RequestOffset", kBoolean, "offset this job in the tray"},
    {"com.zarvo.print.EmitJTML", kNumber, "write the XML ticket", 0, 1, kOffOn},
    Group("com.zarvo.print.JTMLOptions",
          "which sections the XML ticket has; only the presence of a key counts", kJtmlOptions),
    Group("com.zarvo.print.FaxOptions", "fax", kFaxOptions),
    ListOf("com.zarvo.print.FaxRecipientList", "fax recipients", kRecipient),
    Group("com.zarvo.print.InvertImageOptions", "negative and mirror", kInvertImage),
    Group("com.zarvo.print.JobLevelStock", "the job's paper", kStock),
    Group("com.zarvo.print.JobType", "what becomes of the job", kJobType),
    {"com.zarvo.print.SeparatorColor", kNumber, "colour of transparency separators", 1, 21,
     kStockColors},
    {"com.zarvo.print.SeparatorOption", kNumber, "transparency separators", 1, 3, kSeparators},
    Group("com.zarvo.print.SpecialPages.BackCover", "back cover", kCover),
    InXml(ListOf("com.zarvo.print.SpecialPages.ExceptionList", "page exceptions", kException)),
    Group("com.zarvo.print.SpecialPages.FrontCover", "front cover", kCover),
    InXml(ListOf("com.zarvo.print.SpecialPages.InsertList", "inserts", kInsert)),
    InXml({"com.zarvo.print.BookletFoldStaple", kNumber, "finish of a booklet", 7, 8, kFoldStaple}),
    InXml({"com.zarvo.print.FinishingBindValue", kNumber, "binding choice", 15, 16}),
    InXml({"com.zarvo.print.FinishingCustom", kText, "finishing template of the printer"}),
    InXml({"com.zarvo.print.FinishingDuplex", kNumber, "sides", 1, 3, kSides}),
    InXml({"com.zarvo.print.FinishingFoldValue", kNumber, "fold choice", 19, 48}),
    InXml({"com.zarvo.print.FinishingHolePunchOptions", kNumber, "number of holes", 3, 5}),
    InXml({"com.zarvo.print.FinishingHolePunchValue", kNumber, "punch choice", 0, 49}),
    InXml({"com.zarvo.print.FinishingOffset", kNumber, "offset of sets", 1, 5, kOffsets}),
    InXml({"com.zarvo.print.FinishingOffsetEnableSubset", kNumber, "offset of subsets", 0, 1,
           kOffOn}),
    InXml({"com.zarvo.print.FinishingOffsetPagesPerSubset", kNumber, "pages in a subset", 1,
           kHighest}),
    InXml({"com.zarvo.print.FinishingOptions", kNumber,
           "finishing preset; it says which of the other finishing values count", 0, 52}),
    InXml({"com.zarvo.print.FinishingOutputColor", kNumber, "colour or grayscale", 1, 2,
           kOutputColor}),
    InXml({"com.zarvo.print.FinishingOutputDestination", kNumber, "output bin", 1, 9, kOutputBins}),
    InXml({"com.zarvo.print.FinishingSlipSheet", kNumber, "slip sheets", 1, 2, kSlipSheets}),
    InXml({"com.zarvo.print.FinishingStaple1Value", kNumber, "one staple", 0, 29}),
    InXml({"com.zarvo.print.FinishingStaple2Value", kNumber, "two staples", 0, 29}),
    InXml({"com.zarvo.print.FinishingStapleCenterValue", kNumber, "staples in the fold", 0, 29}),
    InXml({"com.zarvo.print.FinishingZFoldValue", kNumber, "Z-fold", 38, 39, kZFolds}),
    InXml({"com.zarvo.print.AdvancedRotateImage180", kNumber, "turn the pages", 1, 2, kRotations}),
    InXml({"com.zarvo.print.Antialiasing", kNumber, "smoothing of edges", 1, 2, kAntiAliasing}),
    InXml(Group("com.zarvo.print.BackgroundFormsOptions", "background forms", kForms)),
    InXml({"com.zarvo.print.CorvantaEmulation", kNumber, "darkness of another printer", 2, 3,
           kEmulations}),
    InXml(Group("com.zarvo.print.FullColorOptions", "colour settings", kFullColor)),
    InXml({"com.zarvo.print.HalftoneScreen", kNumber, "halftone screen", 1, 47, kHalftones}),
    InXml(Group("com.zarvo.print.HighlightColorOptionsJob", "highlight colour", kHighlightColor)),
    InXml(Group("com.zarvo.print.ImageShiftOptionsJob", "image shift", kImageShift)),
    InXml({"com.zarvo.print.JobNotesAdditionalInfo", kText, "further notes"}),
    InXml({"com.zarvo.print.JobNotesJobName", kText, "name of the job"}),
    InXml({"com.zarvo.print.JobNotesMessage", kText, "message to the operator"}),
    InXml({"com.zarvo.print.JobNotesRecipient", kText, "who gets the printout"}),
    InXml({"com.zarvo.print.JobNotesSenderName", kText, "who sends the job"}),
    InXml({"com.zarvo.print.JobNotesSheetMessage", kText, "message on the banner page"}),
    InXml({"com.zarvo.print.JobNotesUseJobName", kBoolean, "name the job after the document"}),
    InXml({"com.zarvo.print.LightenDarken", kNumber, "darkness", kLowest, kHighest}),
    InXml({"com.zarvo.print.OPIPrescan", kNumber, "look for OPI images first", 2, 4, kOpiPrescan}),
    InXml({"com.zarvo.print.OPISubsitution", kNumber, "put in OPI images", 2, 3, kOpiInsertion}),
    InXml({"com.zarvo.print.OutputOrder", kNumber, "order and side of delivery", 2, 5,
           kOutputOrders}),
    InXml({"com.zarvo.print.PagesToPrintFrom", kNumber, "first page", 1, kHighest}),
    InXml(
        {"com.zarvo.print.PagesToPrintSelected", kNumber, "print a range of pages", 0, 1, kOffOn}),
    InXml({"com.zarvo.print.PagesToPrintTo", kNumber, "last page", 1, kHighest}),
    InXml({"com.zarvo.print.Resolution", kNumber, "resolution", 1, 4, kResolutions}),
    InXml({"com.zarvo.print.TonerSaver", kBoolean, "save toner"}),
};

}  // namespace

std::span<const TicketKey> TopLevelKeys() { return kTopLevel; }

const TicketKey* FindKey(std::span<const TicketKey> keys, std::string_view name) {
  const auto row = std::find_if(keys.begin(), keys.end(),
                                [name](const TicketKey& key) { return key.name == name; });
  return row == keys.end() ? nullptr : &*row;
}

const TicketKey* FindTopLevelKey(std::string_view name) {
  if (const TicketKey* key = FindKey(kTopLevel, name)) return key;
  return FindKey(kTopLevel, std::string(kPrefix) += name);
}

const char* WordOf(const TicketKey& key, std::int64_t code) {
  const auto row = std::find_if(key.words.begin(), key.words.end(),
                                [code](const CodeWord& word) { return word.code == code; });
  return row == key.words.end() ? nullptr : row->word;
}

}  // namespace zarvo::tool
