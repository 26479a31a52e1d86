// SPDX-License-Identifier: Apache-2.0
#include "Source/TicketKeys.h"
#include "Source/TicketNames.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <limits>

namespace zarvo {
namespace {

using enum KeyType;

constexpr std::int64_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t kHighest = std::numeric_limits<std::int32_t>::max();

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
constexpr CodeWord kQuarterTurns[] = {
    {0, "none"}, {90, "left"}, {180, "upside-down"}, {270, "right"}};

// Media.
constexpr CodeWord kStockSizes[] = {
    {1, "letter"}, {2, "legal"},      {3, "tabloid"},    {4, "a4"},      {5, "a3"},
    {11, "12x18"}, {14, "b4"},        {15, "sra3"},      {18, "a5"},     {20, "envelope-c5"},
    {40, "a6"},    {17, "statement"}, {21, "executive"}, {75, "custom"}, {46, "envelope-dl"},
};
constexpr CodeWord kStockTypes[] = {{kStandardStock, "standard"},
                                    {kTransparencyStock, "transparency"},
                                    {kPreprintedStock, "preprinted"},
                                    {kEnvelopeStock, "envelopes"},
                                    {kLabelStock, "labels"},
                                    {kRecycledStock, "recycled"},
                                    {kTabStock, "tabs"}};
constexpr CodeWord kStockColors[] = {
    {kWhite, "white"}, {kBlue, "blue"},   {kYellow, "yellow"}, {kGreen, "green"},
    {kPink, "pink"},   {kClear, "clear"}, {kBuff, "buff"},     {kGoldenrod, "goldenrod"},
    {kRed, "red"},     {kIvory, "ivory"}, {kGray, "gray"},     {kOrange, "orange"},
};
/// What the customer set up, types and colours alike.
constexpr CodeWord kCustomStocks[] = {
    {kFirstCustomStock, "custom1"},
    {16, "custom2"},
    {17, "custom3"},
    {18, "custom4"},
    {19, "custom5"},
    {20, "custom6"},
    {kLastCustomStock, "custom7"},
};
template <std::size_t kCount>
constexpr auto WithCustom(const CodeWord (&words)[kCount]) {
  std::array<CodeWord, kCount + std::size(kCustomStocks)> all{};
  std::copy(std::begin(kCustomStocks), std::end(kCustomStocks),
            std::copy(std::begin(words), std::end(words), all.begin()));
  return all;
}
constexpr auto kAllStockTypes = WithCustom(kStockTypes);
constexpr auto kAllStockColors = WithCustom(kStockColors);
constexpr CodeWord kCoatings[] = {
    {1, "glossy"}, {2, "high-gloss"}, {3, "semi-gloss"}, {4, "satin"}, {5, "matte"}};
constexpr CodeWord kCoatedSides[] = {{1, "both"}, {2, "front"}, {3, "back"}};
constexpr CodeWord kFinishes[] = {{1, "fine"}, {2, "medium"}, {3, "coarse"}};
constexpr CodeWord kGrains[] = {{1, "y-grain"}, {2, "x-grain"}};
constexpr CodeWord kPrePrinted[] = {{0, "blank"}, {1, "pre-printed"}, {2, "letter-head"}};
constexpr CodeWord kRecycled[] = {{0, "none"}, {1, "standard"}};
constexpr TicketKey kStock[] = {
    {key::stock::kCoatedSides, kNumber, "which sides are coated", 1, 3, kCoatedSides},
    {key::stock::kCoating, kNumber, "kind of coating", 1, 5, kCoatings},
    {key::stock::kColor, kNumber, "colour", 1, 21, kAllStockColors},
    {key::stock::kDescription, kText, "free description"},
    {key::stock::kFinish, kNumber, "surface finish", 1, 3, kFinishes},
    {key::stock::kGrain, kNumber, "grain direction", 1, 2, kGrains},
    {key::stock::kLength, kNumber, "length of a size without a code, 1/100 mm", 1, kHighest},
    {key::stock::kName, kText, "name under which the printer knows the stock"},
    {key::stock::kOrderCount, kNumber, "sheets in an ordered set, such as tabs", 1, kHighest},
    {key::stock::kPrePrinted, kNumber, "printed already", 0, 2, kPrePrinted},
    {key::stock::kPunched, kNumber, "number of holes", 1, kHighest},
    {key::stock::kRecycled, kNumber, "recycled stock", 0, 1, kRecycled},
    {key::stock::kSize, kNumber, "stock size code", kLowest, 99, kStockSizes},
    {key::stock::kSource, kNumber, "tray; 0 is the inserter behind the fuser", 0, 9},
    {key::stock::kType, kNumber, "kind of stock", 1, 24, kAllStockTypes},
    {key::stock::kWeight, kNumber, "weight, g/m2", 1, kHighest},
    {key::stock::kWidth, kNumber, "width of a size without a code, 1/100 mm", 1, kHighest},
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
    {key::full_color::kAntiAliasing, kNumber, "smoothing of edges", 1, 2, kAntiAliasing},
    {key::full_color::kBlackOverprint, kNumber, "black printed over colours", 1, 2, kOverprint},
    {key::full_color::kCMYKImages, kAny, "source profile of CMYK images: a code or a name"},
    {key::full_color::kCMYKTextGraphics, kAny,
     "source profile of CMYK text and graphics: a code or a name"},
    {key::full_color::kContrast, kNumber, "contrast", kLowest, kHighest},
    {key::full_color::kCyanRed, kNumber, "balance from cyan to red", kLowest, kHighest},
    {key::full_color::kDestination, kAny, "destination profile: a code or a name"},
    {key::full_color::kGraphicsRendering, kNumber, "rendering intent of graphics", 1, 6,
     kRendering},
    {key::full_color::kGrayImages, kText, "source profile of gray images"},
    {key::full_color::kGrayTextGraphics, kText, "source profile of gray text and graphics"},
    {key::full_color::kHalftone, kNumber, "halftone; not sent to the printer", 0, 47},
    {key::full_color::kImageRendering, kNumber, "rendering intent of images", 1, 6, kRendering},
    {key::full_color::kLightness, kNumber, "lightness", kLowest, kHighest},
    {key::full_color::kMagentaGreen, kNumber, "balance from magenta to green", kLowest, kHighest},
    {key::full_color::kOutputColor, kNumber, "colour or grayscale", 1, 2, kOutputColor},
    {key::full_color::kRGBImages, kAny, "source profile of RGB images: a code or a name"},
    {key::full_color::kRGBTextGraphics, kAny,
     "source profile of RGB text and graphics: a code or a name"},
    {key::full_color::kSaturation, kNumber, "saturation", kLowest, kHighest},
    {key::full_color::kTRC, kText, "tone reproduction curve"},
    {key::full_color::kTextRendering, kNumber, "rendering intent of text", 1, 6, kRendering},
    {key::full_color::kTrapping, kNumber, "trapping", 1, 2, kTrapping},
    {key::full_color::kTrappingFastDirection, kNumber, "trap width across the feed", 0, kHighest},
    {key::full_color::kTrappingSlowDirection, kNumber, "trap width along the feed", 0, kHighest},
    {key::full_color::kYellowBlue, kNumber, "balance from yellow to blue", kLowest, kHighest},
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
    {key::highlight::kColorB, kNumber, "blue of a custom colour", 0, 255},
    {key::highlight::kColorG, kNumber, "green of a custom colour", 0, 255},
    {key::highlight::kColorH, kNumber, "hue of a custom colour", 0, 360},
    {key::highlight::kColorR, kNumber, "red of a custom colour", 0, 255},
    {key::highlight::kColorRGB, kNumber, "custom colour as RGB, else as HSV", 0, 1, kOffOn},
    {key::highlight::kColorS, kNumber, "saturation of a custom colour", 0, 255},
    {key::highlight::kColorV, kNumber, "value of a custom colour", 0, 255},
    {key::highlight::kMappingAlgorithm, kNumber, "mapping method", 1, 5, kMappings},
    {key::highlight::kMappingColor, kNumber, "colour that is mapped to it", 1, 13, kMappedColors},
    {key::highlight::kMismatchAction, kNumber, "when the colorant is not loaded", 1, 3,
     kMismatches},
    {key::highlight::kPrintingColor, kNumber, "colorant", 1, 5,
     kInkColors},  // the dialog's spelling
};
constexpr TicketKey kImageShift[] = {
    {key::shift::kFullPrecision, kBoolean, "values are in 1/100 mm already"},
    {key::shift::kInches, kNumber, "values are in 1/100 inch, else in 1/10 mm", 0, 1, kOffOn},
    {key::shift::kX1, kNumber, "shift to the right, side 1", kLowest, kHighest},
    {key::shift::kX2, kNumber, "shift to the right, side 2", kLowest, kHighest},
    {key::shift::kY1, kNumber, "shift upwards, side 1", kLowest, kHighest},
    {key::shift::kY2, kNumber, "shift upwards, side 2", kLowest, kHighest},
};
constexpr TicketKey kInvertImage[] = {
    {key::invert::kMirrorImage, kNumber, "mirror the page", 0, 1, kOffOn},
    {key::invert::kNegativeImage, kNumber, "negative image", 0, 1, kOffOn},
};

// Special pages.
constexpr CodeWord kCoverSides[] = {
    {kCoverBlank, "none"}, {kCoverFront, "front"}, {kCoverBack, "back"}, {kCoverBothSides, "both"}};
constexpr CodeWord kSides[] = {
    {kOneSided, "one-sided"}, {kLongEdge, "long-edge"}, {kShortEdge, "short-edge"}};
constexpr TicketKey kCover[] = {
    {key::special_page::kSidesImaged, kNumber, "which sides of the cover are printed", 1, 4,
     kCoverSides},
    Group(key::special_page::kStock, "the cover's paper", kStock),
};
constexpr TicketKey kInsert[] = {
    {key::special_page::kQuantity, kNumber, "number of sheets", 1, kHighest},
    {key::special_page::kStartPage, kNumber, "page after which they come", 0, kHighest},
    Group(key::special_page::kStock, "the sheets' paper", kStock),
};
constexpr CodeWord kHalftones[] = {
    {1, "85-lpi"},   {2, "106-lpi"},  {3, "125-lpi"},  {4, "134-lpi"},    {5, "156-lpi"},
    {6, "200-dpi"},  {7, "150-dpi"},  {8, "200-lpi"},  {9, "300-lpi"},    {10, "600-lpi"},
    {11, "300-dpi"}, {12, "600-dpi"}, {13, "175-dpi"}, {14, "stochastic"}};
constexpr TicketKey kException[] = {
    {key::special_page::kAntialiasing, kNumber, "smoothing of edges", 1, 2, kAntiAliasing},
    {key::special_page::kEndPage, kNumber, "last page", 1, kHighest},
    Group(key::special_page::kFullColor, "colour settings", kFullColor),
    {key::special_page::kHalftoneScreen, kNumber, "halftone screen", 1, 47, kHalftones},
    {key::special_page::kLightenDarken, kNumber, "darkness", kLowest, kHighest},
    {key::special_page::kOutputColor, kNumber, "colour or grayscale", 1, 2, kOutputColor},
    {key::special_page::kSidesImaged, kNumber, "sides", 1, 3, kSides},
    {key::special_page::kStartPage, kNumber, "first page", 1, kHighest},
    Group(key::special_page::kStock, "the pages' paper", kStock),
    Group(key::special_page::kImageShift, "image shift", kImageShift),
};
constexpr TicketKey kForms[] = {
    {key::forms::kCyclePages, kNumber, "pages after which the form starts again", 0, kHighest},
    {key::shift::kFullPrecision, kBoolean, "offsets are in 1/100 mm already"},
    {key::shift::kInches, kNumber, "offsets are in 1/10 inch, else in mm", 0, 1, kOffOn},
    {key::forms::kMergeWithString, kText, "stored form to print behind the pages"},
    {key::forms::kNewFormString, kText, "name under which the job is stored as a form"},
    {key::forms::kUseDocumentName, kNumber, "store it under the document's name", 0, 1, kOffOn},
    {key::shift::kX1, kNumber, "offset to the right", kLowest, kHighest},
    {key::shift::kY1, kNumber, "offset upwards", kLowest, kHighest},
};

// The job.
constexpr CodeWord kJobTypes[] = {
    {kJobTypeNormal, "normal"},   {kJobTypeHold, "hold"},
    {kJobTypeSave, "save"},       {kJobTypePrintAndSave, "print-and-save"},
    {kJobTypeFax, "fax"},         {kJobTypeSecure, "secure"},
    {kJobTypeDelayed, "delayed"}, {kJobTypeSampleSet, "proof"}};
constexpr CodeWord kSaveDispositions[] = {{kSaveAndPrint, "print-and-save"},
                                          {kSaveOnly, "save-only"}};
constexpr CodeWord kSavedFormats[] = {{1, "single-page-tiff"},
                                      {2, "multi-page-tiff"},
                                      {3, "pdf"},
                                      {4, "fast-reprint"},
                                      {5, "fast-reprint-and-dri"}};
constexpr TicketKey kJobType[] = {
    {key::job_type::kDelayedPrintTime, kDate, "when a delayed job is printed"},
    {key::job_type::kJobType, kNumber, "what becomes of the job", 1, 9, kJobTypes},
    {key::job_type::kMediaType, kNumber, "format of a saved job", 1, 5, kSavedFormats},
    {key::job_type::kSaveDisposition, kNumber, "whether a saved job is printed too", 1, 3,
     kSaveDispositions},
    {key::job_type::kSavedJobLocation, kText, "folder of the printer for a saved job"},
    {key::job_type::kSavedJobName, kText, "name of a saved job"},
    Secret({key::job_type::kSecurePrintPassword, kText, "PIN, up to 19 characters"}),
    {key::job_type::kUseJobName, kBoolean, "save it under the document's name"},
};
constexpr TicketKey kJtmlOptions[] = {
    {key::sections::kAll, kAny, "every section"},
    {key::sections::kCovers, kAny, "covers"},
    {key::sections::kExceptions, kAny, "page exceptions"},
    {key::sections::kInserts, kAny, "inserts"},
};

// Fax.
constexpr CodeWord kFaxResolutions[] = {
    {kFaxStandard, "standard"}, {kFaxFine, "fine"}, {kFaxSuperfine, "superfine"}};
constexpr CodeWord kSendSpeeds[] = {
    {kFaxForced4800, "forced-4800"}, {kFax14400, "14400"}, {kFaxAutomatic, "automatic"}};
constexpr CodeWord kNewResolutions[] = {{kNewJob600Dpi, "600-dpi"}, {kNewJob200Dpi, "200-dpi"}};
constexpr CodeWord kShowRecipients[] = {
    {kNoRecipients, "none"}, {kRecipientNames, "names"}, {kCustomRecipients, "custom"}};
constexpr CodeWord kFaxSizes[] = {{kFaxCoverLetter, "letter"}, {kFaxCoverA4, "a4"}};
constexpr TicketKey kFaxOptions[] = {
    {kFaxPrintConfirmationSheetProperty, kBoolean, "print a confirmation"},
    {kFaxPrintCoverSheetProperty, kBoolean, "send a cover sheet"},
    {kFaxCoverSheetNotesProperty, kText, "notes on the cover"},
    Secret({kFaxCreditCardProperty, kText, "billing code, up to 16 bytes"}),
    {kFaxCoverCustomRecipientTextProperty, kText, "recipient text of the cover"},
    {kFaxDialingPrefixProperty, kText, "dialled before every number, up to 4 bytes"},
    {kFaxCoverLocalizedFaxLabel, kText, "label of the sender's fax number"},
    {kFaxCoverLocalizedFromLabel, kText, "heading of the sender"},
    {kFaxCoverLocalizedNotesLabel, kText, "heading of the notes"},
    {kFaxCoverLocalizedPhoneLabel, kText, "label of the sender's phone number"},
    {kFaxCoverLocalizedToLabel, kText, "heading of the recipients"},
    {kFaxNewJobResolutionProperty, kNumber, "resolution of a job that brings its own header", 2, 5,
     kNewResolutions},
    {kFaxResolutionProperty, kNumber, "resolution", 1, 3, kFaxResolutions},
    {kFaxSendSpeedProperty, kNumber, "transmission speed", 1, 3, kSendSpeeds},
    {kFaxSendTimeProperty, kDate, "when it is sent"},
    {kFaxSenderEmailAddressProperty, kText, "sender's e-mail address"},
    {kFaxSenderFaxNumberProperty, kText, "sender's fax number"},
    {kFaxSenderNameProperty, kText, "sender's name"},
    {kFaxSenderOrganizationProperty, kText, "sender's company"},
    {kFaxSenderPhoneNumberProperty, kText, "sender's phone number"},
    {kFaxCoverShowRecipientsProperty, kNumber, "recipients on the cover", 1, 3, kShowRecipients},
    {kFaxCoverShowSenderProperty, kBoolean, "sender on the cover"},
    {kFaxCoverShowWatermarkProperty, kBoolean, "watermark on the cover"},
    {kFaxCoverSizeProperty, kNumber, "paper of the cover", 1, 2, kFaxSizes},
    {kFaxCoverWatermarkNameProperty, kText, "which watermark"},
};
constexpr TicketKey kRecipient[] = {
    {kFaxRecipientEmailAddressProperty, kText, "e-mail address"},
    {kFaxRecipientFaxNumberProperty, kText, "fax number as typed"},
    {kFaxRecipientFaxNumberLabelProperty, kText, "label of the fax number"},
    {kFaxRecipientFirstNameProperty, kText, "given name"},
    {kFaxRecipientLastNameProperty, kText, "family name"},
    {kFaxRecipientMailboxProperty, kText, "mailbox on the printer"},
    {kFaxRecipientOrganizationProperty, kText, "company"},
    {kFaxRecipientPhoneNumberProperty, kText, "phone number"},
    {kFaxRecipientUIDProperty, kText, "address-book record"},
};

// Top level.
constexpr CodeWord kActModes[] = {{kAccountingOff, "off"},
                                  {kUserAndOptionalAccount, "user"},
                                  {kUserAndAccount, "user-and-account"}};
constexpr CodeWord kActTypes[] = {
    {kNoAccount, "none"}, {kGeneralAccount, "general"}, {kGroupAccount, "group"}};
constexpr CodeWord kReadingOrders[] = {{kRightToLeft, "right-to-left"},
                                       {kLeftToRight, "left-to-right"}};
constexpr CodeWord kFoldStaple[] = {{kBookletFold, "fold"},
                                    {kBookletFoldAndStaple, "fold-and-staple"}};
constexpr CodeWord kPlacements[] = {{kWatermarkBackground, "background"},
                                    {kWatermarkOverlay, "overlay"},
                                    {kWatermarkForeground, "foreground"}};
constexpr CodeWord kSeparators[] = {
    {kNoSeparators, "none"}, {kBlankSeparators, "blank"}, {kImagedSeparators, "imaged"}};
constexpr CodeWord kOutputBins[] = {{kBinAutomatic, "automatic"}, {kBinTop, "top"},
                                    {kBinStacker, "stacker"},     {kBinStacker1, "stacker-1"},
                                    {kBinStacker2, "stacker-2"},  {kBinTop1, "top-1"},
                                    {kBinTop2, "top-2"}};
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
constexpr CodeWord kRotations[] = {{kRotate0, "rotate-0"}, {kRotate180, "rotate-180"}};
constexpr CodeWord kOffsets[] = {{kOffsetNone, "none"},
                                 {kOffsetSets, "set"},
                                 {kOffsetSubsets, "subset"},
                                 {kOffsetSetsAndSubsets, "set-and-subset"}};
constexpr CodeWord kSlipSheets[] = {{kSlipSheetsOff, "off"}, {kSlipSheetsOn, "on"}};
constexpr CodeWord kZFolds[] = {{kZFold1011, "z-fold-1"}, {kZFold1008, "z-fold-2"}};

constexpr TicketKey kTopLevel[] = {
    {key::kDocumentName, kText, "the document's name"},
    InXml(
        {key::kSystemDuplexing, kNumber, "sides, when FinishingDuplex does not say", 1, 3, kSides}),
    Secret({key::kAccount, kText, "account"}),
    {key::kAccountType, kNumber, "kind of account in mode \"user\"", 1, 3, kActTypes},
    {key::kAccounting, kNumber, "accounting mode", 1, 3, kActModes},
    Secret({key::kAccountUser, kText, "accounting user"}),
    InXml(Secret({key::kXmlAccount, kText, "account in the XML ticket"})),
    InXml({key::kXmlAccounting, kNumber,
           "accounting in the XML ticket, on only in mode \"user-and-account\"", 1, 3, kActModes}),
    InXml(Secret({key::kXmlAccountUser, kText, "accounting user in the XML ticket"})),
    {key::kListedWatermark, kNumber, "watermark by its place in the list; 1 is none", 1, kHighest},
    {key::kListedWatermarkFirstPage, kNumber, "that watermark on the first page only", 0, 1,
     kOffOn},
    {key::kListedWatermarkForeground, kNumber, "that watermark over the page, else behind", 0, 1,
     kOffOn},
    {key::kWatermarkFirstPageOnly, kNumber, "watermark on the first page only", 0, 1, kOffOn},
    {key::kWatermarkPlace, kNumber, "where the watermark goes", 1, 3, kPlacements},
    {key::kWatermarkTurn, kNumber, "how far the pages lie turned, for the watermark", 0, 270,
     kQuarterTurns},
    {key::kWatermark, kText, "watermark by its name"},
    {key::kBookletReadingOrder, kNumber, "reading order of a booklet", 1, 2, kReadingOrders},
    {key::kBookletDrawOutlines, kNumber, "frame around each booklet page", 0, 1, kOffOn},
    {key::kBookletForceNewSize, kBoolean, "booklet on the job's stock size"},
    {key::kBookletLayout, kBoolean, "booklet"},
    {key::kCreep, kNumber, "creep for each sheet, 1/10 point", 0, kHighest},
    {key::kGutter, kNumber, "space between booklet pages, points", 0, kHighest},
    {key::kRotateBooklet180Degrees, kBoolean, "turn booklet sheets"},
    {key::kBannerPage, kBoolean, "banner page"},
    {key::kRequestOffset, kBoolean, "offset this job in the tray"},
    {key::kHouseTicket, kText, "ticket that is kept under this name, below all other settings"},
    {key::kEmitJTML, kNumber, "write the XML ticket", 0, 1, kOffOn},
    Group(key::kJTMLOptions, "which sections the XML ticket has; only the presence of a key counts",
          kJtmlOptions),
    Group(key::kFaxOptions, "fax", kFaxOptions),
    ListOf(key::kFaxRecipientList, "fax recipients", kRecipient),
    Group(key::kInvertImageOptions, "negative and mirror", kInvertImage),
    Group(key::kJobLevelStock, "the job's paper", kStock),
    Group(key::kJobType, "what becomes of the job", kJobType),
    {key::kSeparatorColor, kNumber, "colour of transparency separators", 1, 21, kAllStockColors},
    {key::kSeparatorOption, kNumber, "transparency separators", 1, 3, kSeparators},
    Group(key::kBackCover, "back cover", kCover),
    InXml(ListOf(key::kExceptionList, "page exceptions", kException)),
    Group(key::kFrontCover, "front cover", kCover),
    InXml(ListOf(key::kInsertList, "inserts", kInsert)),
    InXml({key::kBookletFoldStaple, kNumber, "finish of a booklet", 7, 8, kFoldStaple}),
    InXml({key::kFinishingBindValue, kNumber, "binding choice", 15, 16}),
    InXml({key::kFinishingCustom, kText, "finishing template of the printer"}),
    InXml({key::kFinishingDuplex, kNumber, "sides", 1, 3, kSides}),
    InXml({key::kFinishingFoldValue, kNumber, "fold choice", 19, 48}),
    InXml({key::kFinishingHolePunchOptions, kNumber, "number of holes", 3, 5}),
    InXml({key::kFinishingHolePunchValue, kNumber, "punch choice", 0, 49}),
    InXml({key::kFinishingOffset, kNumber, "offset of sets", 1, 5, kOffsets}),
    InXml({key::kFinishingOffsetEnableSubset, kNumber, "offset of subsets", 0, 1, kOffOn}),
    InXml({key::kFinishingOffsetPagesPerSubset, kNumber, "pages in a subset", 1, kHighest}),
    InXml({key::kFinishingOptions, kNumber,
           "finishing preset; it says which of the other finishing values count", 0, 52}),
    InXml({key::kFinishingOutputColor, kNumber, "colour or grayscale", 1, 2, kOutputColor}),
    InXml({key::kFinishingOutputDestination, kNumber, "output bin", 1, 9, kOutputBins}),
    InXml({key::kFinishingSlipSheet, kNumber, "slip sheets", 1, 2, kSlipSheets}),
    InXml({key::kFinishingStaple1Value, kNumber, "one staple", 0, 29}),
    InXml({key::kFinishingStaple2Value, kNumber, "two staples", 0, 29}),
    InXml({key::kFinishingStapleCenterValue, kNumber, "staples in the fold", 0, 29}),
    InXml({key::kFinishingZFoldValue, kNumber, "Z-fold", 38, 39, kZFolds}),
    InXml({key::kAdvancedRotateImage180, kNumber, "turn the pages", 1, 2, kRotations}),
    InXml({key::kAntialiasing, kNumber, "smoothing of edges", 1, 2, kAntiAliasing}),
    InXml(Group(key::kBackgroundFormsOptions, "background forms", kForms)),
    InXml({key::kCorvantaEmulation, kNumber, "darkness of another printer", 2, 3, kEmulations}),
    InXml(Group(key::kFullColorOptions, "colour settings", kFullColor)),
    InXml({key::kHalftoneScreen, kNumber, "halftone screen", 1, 47, kHalftones}),
    InXml(Group(key::kHighlightColorOptionsJob, "highlight colour", kHighlightColor)),
    InXml(Group(key::kImageShiftOptionsJob, "image shift", kImageShift)),
    InXml({key::kJobNotesAdditionalInfo, kText, "further notes"}),
    InXml({key::kJobNotesJobName, kText, "name of the job"}),
    InXml({key::kJobNotesMessage, kText, "message to the operator"}),
    InXml({key::kJobNotesRecipient, kText, "who gets the printout"}),
    InXml({key::kJobNotesSenderName, kText, "who sends the job"}),
    InXml({key::kJobNotesSheetMessage, kText, "message on the banner page"}),
    InXml({key::kJobNotesUseJobName, kBoolean, "name the job after the document"}),
    InXml({key::kLightenDarken, kNumber, "darkness", kLowest, kHighest}),
    InXml({key::kOPIPrescan, kNumber, "look for OPI images first", 2, 4, kOpiPrescan}),
    InXml({key::kOPISubsitution, kNumber, "put in OPI images", 2, 3, kOpiInsertion}),
    InXml({key::kOutputOrder, kNumber, "order and side of delivery", 2, 5, kOutputOrders}),
    InXml({key::kPagesToPrintFrom, kNumber, "first page", 1, kHighest}),
    InXml({key::kPagesToPrintSelected, kNumber, "print a range of pages", 0, 1, kOffOn}),
    InXml({key::kPagesToPrintTo, kNumber, "last page", 1, kHighest}),
    InXml({key::kResolution, kNumber, "resolution", 1, 4, kResolutions}),
    InXml({key::kTonerSaver, kBoolean, "save toner"}),
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
  return FindKey(kTopLevel, std::string(key::kPrefix) += name);
}

const char* WordOf(const TicketKey& key, std::int64_t code) {
  const auto row = std::find_if(key.words.begin(), key.words.end(),
                                [code](const CodeWord& word) { return word.code == code; });
  return row == key.words.end() ? nullptr : row->word;
}

}  // namespace zarvo
