// SPDX-License-Identifier: Apache-2.0
// The names of the job ticket: every key, and the codes of the numbers that stand under them. The
// filter, the tool's checks and the print dialog share them; docs/ticket.md tells what each does.
//
// A key of the top of the ticket is in `key`, the key of an inner dictionary in the namespace of
// that dictionary. A code is an enumerator where some part of the house acts on it; numbers that
// are only handed on, as the printer's own codes, have their one table in jtmlgen.
#pragma once

#include <cstdint>

namespace zarvo {

namespace key {

/// What nearly every key begins with; the readable form leaves it out.
inline constexpr char kPrefix[] = "com.zarvo.print.";

// Set by the desktop's print system, not by the print dialog's own panes.
inline constexpr char kDocumentName[] = "com.apple.print.JobInfo.PMJobName";
inline constexpr char kSystemDuplexing[] = "com.apple.print.PrintSettings.PMDuplexing";

// Accounting, once for the PJL header and once for the XML ticket.
inline constexpr char kAccounting[] = "com.zarvo.Act.On";  // AccountingMode
inline constexpr char kAccountUser[] = "com.zarvo.Act.UID";
inline constexpr char kAccountType[] = "com.zarvo.Act.AT";  // AccountType
inline constexpr char kAccount[] = "com.zarvo.Act.AID";
inline constexpr char kXmlAccounting[] = "com.zarvo.Act.jtml.On";
inline constexpr char kXmlAccountUser[] = "com.zarvo.Act.jtml.UID";
inline constexpr char kXmlAccount[] = "com.zarvo.Act.jtml.AID";

// The watermark, by its name or by its place in the stored list.
inline constexpr char kWatermark[] = "com.zarvo.print.watermark.Watermark";
inline constexpr char kWatermarkPlace[] = "com.zarvo.print.watermark.Option";  // WatermarkPlacement
inline constexpr char kWatermarkFirstPageOnly[] = "com.zarvo.print.watermark.FirstPageOnly";
inline constexpr char kWatermarkTurn[] = "com.zarvo.print.watermark.Turn";
inline constexpr char kListedWatermark[] = "com.zarvo.WMS.ZRVWM";
inline constexpr char kListedWatermarkForeground[] = "com.zarvo.WMS.ZRVWMFg";
inline constexpr char kListedWatermarkFirstPage[] = "com.zarvo.WMS.ZRVWMFPage";

// What becomes of the job, and which form its settings take.
inline constexpr char kJobType[] = "com.zarvo.print.JobType";          // see job_type
inline constexpr char kJTMLOptions[] = "com.zarvo.print.JTMLOptions";  // see sections
inline constexpr char kEmitJTML[] = "com.zarvo.print.EmitJTML";
inline constexpr char kHouseTicket[] = "com.zarvo.print.HouseTicket";
inline constexpr char kFaxOptions[] = "com.zarvo.print.FaxOptions";
inline constexpr char kFaxRecipientList[] = "com.zarvo.print.FaxRecipientList";
inline constexpr char kBannerPage[] = "com.zarvo.print.BannerPage";
inline constexpr char kRequestOffset[] = "com.zarvo.print.RequestOffset";
inline constexpr char kJobNotesUseJobName[] = "com.zarvo.print.JobNotesUseJobName";
inline constexpr char kJobNotesJobName[] = "com.zarvo.print.JobNotesJobName";
inline constexpr char kJobNotesSenderName[] = "com.zarvo.print.JobNotesSenderName";
inline constexpr char kJobNotesMessage[] = "com.zarvo.print.JobNotesMessage";
inline constexpr char kJobNotesRecipient[] = "com.zarvo.print.JobNotesRecipient";
inline constexpr char kJobNotesSheetMessage[] = "com.zarvo.print.JobNotesSheetMessage";
inline constexpr char kJobNotesAdditionalInfo[] = "com.zarvo.print.JobNotesAdditionalInfo";
inline constexpr char kPagesToPrintSelected[] = "com.zarvo.print.PagesToPrintSelected";
inline constexpr char kPagesToPrintFrom[] = "com.zarvo.print.PagesToPrintFrom";
inline constexpr char kPagesToPrintTo[] = "com.zarvo.print.PagesToPrintTo";

// Paper.
inline constexpr char kJobLevelStock[] = "com.zarvo.print.JobLevelStock";  // see stock
inline constexpr char kFrontCover[] = "com.zarvo.print.SpecialPages.FrontCover";
inline constexpr char kBackCover[] = "com.zarvo.print.SpecialPages.BackCover";
inline constexpr char kInsertList[] = "com.zarvo.print.SpecialPages.InsertList";
inline constexpr char kExceptionList[] = "com.zarvo.print.SpecialPages.ExceptionList";
inline constexpr char kSeparatorOption[] = "com.zarvo.print.SeparatorOption";  // SeparatorKind
inline constexpr char kSeparatorColor[] = "com.zarvo.print.SeparatorColor";    // StockColor

// Booklets.
inline constexpr char kBookletLayout[] = "com.zarvo.print.BookletLayout";
inline constexpr char kBookletForceNewSize[] = "com.zarvo.print.BookletForceNewSize";
inline constexpr char kBookletDrawOutlines[] = "com.zarvo.print.BookletDrawOutlines";
inline constexpr char kBookletReadingOrder[] =
    "com.zarvo.print.AdvancedBookletLayoutOrderStr";  // ReadingOrder
inline constexpr char kRotateBooklet180Degrees[] = "com.zarvo.print.RotateBooklet180Degrees";
inline constexpr char kGutter[] = "com.zarvo.print.Gutter";
inline constexpr char kCreep[] = "com.zarvo.print.Creep";

// Finishing. The preset says which of the other values count.
inline constexpr char kFinishingOptions[] = "com.zarvo.print.FinishingOptions";  // FinishingPreset
inline constexpr char kFinishingStaple1Value[] = "com.zarvo.print.FinishingStaple1Value";
inline constexpr char kFinishingStaple2Value[] = "com.zarvo.print.FinishingStaple2Value";
inline constexpr char kFinishingStapleCenterValue[] = "com.zarvo.print.FinishingStapleCenterValue";
inline constexpr char kFinishingHolePunchValue[] = "com.zarvo.print.FinishingHolePunchValue";
inline constexpr char kFinishingHolePunchOptions[] = "com.zarvo.print.FinishingHolePunchOptions";
inline constexpr char kFinishingZFoldValue[] = "com.zarvo.print.FinishingZFoldValue";
inline constexpr char kFinishingFoldValue[] = "com.zarvo.print.FinishingFoldValue";
inline constexpr char kFinishingBindValue[] = "com.zarvo.print.FinishingBindValue";
inline constexpr char kBookletFoldStaple[] = "com.zarvo.print.BookletFoldStaple";
inline constexpr char kFinishingCustom[] = "com.zarvo.print.FinishingCustom";
inline constexpr char kFinishingSlipSheet[] = "com.zarvo.print.FinishingSlipSheet";
inline constexpr char kFinishingOffset[] = "com.zarvo.print.FinishingOffset";
inline constexpr char kFinishingOffsetEnableSubset[] =
    "com.zarvo.print.FinishingOffsetEnableSubset";
inline constexpr char kFinishingOffsetPagesPerSubset[] =
    "com.zarvo.print.FinishingOffsetPagesPerSubset";

// Sheets and output.
inline constexpr char kFinishingDuplex[] = "com.zarvo.print.FinishingDuplex";
inline constexpr char kFinishingOutputDestination[] = "com.zarvo.print.FinishingOutputDestination";
inline constexpr char kFinishingOutputColor[] = "com.zarvo.print.FinishingOutputColor";
inline constexpr char kOutputOrder[] = "com.zarvo.print.OutputOrder";  // OutputOrderCode
inline constexpr char kAdvancedRotateImage180[] = "com.zarvo.print.AdvancedRotateImage180";

// Image quality.
inline constexpr char kResolution[] = "com.zarvo.print.Resolution";
inline constexpr char kHalftoneScreen[] = "com.zarvo.print.HalftoneScreen";
inline constexpr char kAntialiasing[] = "com.zarvo.print.Antialiasing";
inline constexpr char kLightenDarken[] = "com.zarvo.print.LightenDarken";
inline constexpr char kCorvantaEmulation[] = "com.zarvo.print.CorvantaEmulation";
inline constexpr char kTonerSaver[] = "com.zarvo.print.TonerSaver";
inline constexpr char kOPISubsitution[] =
    "com.zarvo.print.OPISubsitution";  // the dialog's spelling
inline constexpr char kOPIPrescan[] = "com.zarvo.print.OPIPrescan";
inline constexpr char kInvertImageOptions[] = "com.zarvo.print.InvertImageOptions";
inline constexpr char kImageShiftOptionsJob[] = "com.zarvo.print.ImageShiftOptionsJob";
inline constexpr char kHighlightColorOptionsJob[] = "com.zarvo.print.HighlightColorOptionsJob";
inline constexpr char kFullColorOptions[] = "com.zarvo.print.FullColorOptions";
inline constexpr char kBackgroundFormsOptions[] = "com.zarvo.print.BackgroundFormsOptions";

/// Which sections the XML ticket has; a key counts by being there, whatever its value.
namespace sections {
inline constexpr char kAll[] = "JTMLOptionAll";
inline constexpr char kCovers[] = "JTMLOptionCovers";
inline constexpr char kInserts[] = "JTMLOptionInserts";
inline constexpr char kExceptions[] = "JTMLOptionExceptions";
}  // namespace sections

namespace job_type {
inline constexpr char kJobType[] = "JobType";                  // JobTypeCode
inline constexpr char kSaveDisposition[] = "SaveDisposition";  // SaveDispositionCode
inline constexpr char kSecurePrintPassword[] = "SecurePrintPassword";
inline constexpr char kUseJobName[] = "UseJobName";
inline constexpr char kSavedJobName[] = "SavedJobName";
inline constexpr char kSavedJobLocation[] = "SavedJobLocation";
inline constexpr char kMediaType[] = "MediaType";
inline constexpr char kDelayedPrintTime[] = "DelayedPrintTime";
}  // namespace job_type

namespace stock {
inline constexpr char kName[] = "Name";
inline constexpr char kSource[] = "Source";
inline constexpr char kType[] = "Type";    // StockType
inline constexpr char kColor[] = "Color";  // StockColor
inline constexpr char kSize[] = "Size";    // see CompleteStockSizeMap
inline constexpr char kWidth[] = "Width";
inline constexpr char kLength[] = "Length";
inline constexpr char kWeight[] = "Weight";
inline constexpr char kDescription[] = "Description";
inline constexpr char kOrderCount[] = "OrderCount";
inline constexpr char kPunched[] = "Punched";
inline constexpr char kPrePrinted[] = "PrePrinted";
inline constexpr char kRecycled[] = "Recycled";
inline constexpr char kCoating[] = "Coating";
inline constexpr char kCoatedSides[] = "CoatedSides";
inline constexpr char kFinish[] = "Finish";
inline constexpr char kGrain[] = "Grain";
}  // namespace stock

/// A cover, an insert or a page exception.
namespace special_page {
inline constexpr char kStock[] = "Stock";
inline constexpr char kSidesImaged[] = "SidesImaged";  // CoverSides; SidesCode of an exception
inline constexpr char kStartPage[] = "StartPage";
inline constexpr char kEndPage[] = "EndPage";
inline constexpr char kQuantity[] = "Quantity";
inline constexpr char kLightenDarken[] = "LightenDarken";
inline constexpr char kImageShift[] = "com.zarvo.print.ImageShiftOptionsPage";
inline constexpr char kFullColor[] = "FullColorOptionsPage";
inline constexpr char kAntialiasing[] = "Antialiasing";
inline constexpr char kHalftoneScreen[] = "HalftoneScreen";
inline constexpr char kOutputColor[] = "OutputColor";
}  // namespace special_page

/// Image shifts, and the offsets of background forms.
namespace shift {
inline constexpr char kInches[] = "Inches";
inline constexpr char kFullPrecision[] = "FullPrecision";
inline constexpr char kX1[] = "X1";
inline constexpr char kX2[] = "X2";
inline constexpr char kY1[] = "Y1";
inline constexpr char kY2[] = "Y2";
}  // namespace shift

/// Background forms, beside their `shift`.
namespace forms {
inline constexpr char kUseDocumentName[] = "UseDocumentName";
inline constexpr char kNewFormString[] = "NewFormString";
inline constexpr char kMergeWithString[] = "MergeWithString";
inline constexpr char kCyclePages[] = "CyclePages";
}  // namespace forms

namespace invert {
inline constexpr char kNegativeImage[] = "NegativeImage";
inline constexpr char kMirrorImage[] = "MirrorImage";
}  // namespace invert

namespace highlight {
inline constexpr char kPrintingColor[] = "HiglightPrintingColor";  // the dialog's spelling
inline constexpr char kMappingColor[] = "HighlightMappingColor";
inline constexpr char kMappingAlgorithm[] = "HighlightMappingAlgorithm";
inline constexpr char kMismatchAction[] = "HighlightMismatchAction";
inline constexpr char kColorRGB[] = "HighlightColorRGB";
inline constexpr char kColorR[] = "HighlightColorR";
inline constexpr char kColorG[] = "HighlightColorG";
inline constexpr char kColorB[] = "HighlightColorB";
inline constexpr char kColorH[] = "HighlightColorH";
inline constexpr char kColorS[] = "HighlightColorS";
inline constexpr char kColorV[] = "HighlightColorV";
}  // namespace highlight

namespace full_color {
inline constexpr char kLightness[] = "Lightness";
inline constexpr char kContrast[] = "Contrast";
inline constexpr char kSaturation[] = "Saturation";
inline constexpr char kCyanRed[] = "CyanRed";
inline constexpr char kMagentaGreen[] = "MagentaGreen";
inline constexpr char kYellowBlue[] = "YellowBlue";
inline constexpr char kTrapping[] = "Trapping";
inline constexpr char kTrappingFastDirection[] = "TrappingFastDirection";
inline constexpr char kTrappingSlowDirection[] = "TrappingSlowDirection";
inline constexpr char kBlackOverprint[] = "BlackOverprint";
inline constexpr char kTRC[] = "TRC";
inline constexpr char kRGBImages[] = "RGBImages";
inline constexpr char kRGBTextGraphics[] = "RGBTextGraphics";
inline constexpr char kCMYKImages[] = "CMYKImages";
inline constexpr char kCMYKTextGraphics[] = "CMYKTextGraphics";
inline constexpr char kGrayImages[] = "GrayImages";
inline constexpr char kGrayTextGraphics[] = "GrayTextGraphics";
inline constexpr char kDestination[] = "Destination";
inline constexpr char kImageRendering[] = "ImageRendering";
inline constexpr char kTextRendering[] = "TextRendering";
inline constexpr char kGraphicsRendering[] = "GraphicsRendering";
inline constexpr char kAntiAliasing[] = "AntiAliasing";
inline constexpr char kHalftone[] = "Halftone";
inline constexpr char kOutputColor[] = "OutputColor";
}  // namespace full_color

}  // namespace key

/// What becomes of the job.
enum JobTypeCode : std::int32_t {
  kJobTypeNormal = 1,
  kJobTypeHold = 2,
  kJobTypeSave = 3,
  kJobTypePrintAndSave = 4,
  kJobTypeFax = 5,
  kJobTypeSecure = 6,
  kJobTypeDelayed = 7,
  kJobTypeSampleSet = 8,  // a proof
  kJobTypeNoDisposition = 9,
};

enum SaveDispositionCode : std::int32_t { kSaveAndPrint = 2, kSaveOnly = 3 };

enum AccountingMode : std::int32_t {
  kAccountingOff = 1,
  kUserAndOptionalAccount = 2,
  kUserAndAccount = 3,
};
/// Of mode kUserAndOptionalAccount.
enum AccountType : std::int32_t { kNoAccount = 1, kGeneralAccount = 2, kGroupAccount = 3 };

/// Where on the page a watermark goes.
enum WatermarkPlacement : std::int32_t {
  kWatermarkBackground = 1,
  kWatermarkOverlay = 2,  // drawn last, but so that the page shows through
  kWatermarkForeground = 3,
};

enum ReadingOrder : std::int32_t { kRightToLeft = 1, kLeftToRight = 2 };

enum SidesCode : std::int32_t { kOneSided = 1, kLongEdge = 2, kShortEdge = 3 };
/// Which sides of a cover are printed.
enum CoverSides : std::int32_t {
  kCoverBlank = 1,
  kCoverFront = 2,
  kCoverBack = 3,
  kCoverBothSides = 4,
};

/// Transparency separators.
enum SeparatorKind : std::int32_t {
  kNoSeparators = 1,
  kBlankSeparators = 2,
  kImagedSeparators = 3
};

enum StockType : std::int32_t {
  kStandardStock = 1,
  kTransparencyStock = 2,
  kPreprintedStock = 3,
  kEnvelopeStock = 8,
  kLabelStock = 9,
  kRecycledStock = 10,
  kTabStock = 24,
};
enum StockColor : std::int32_t {
  kWhite = 1,
  kBlue = 2,
  kYellow = 3,
  kGreen = 4,
  kPink = 5,
  kClear = 6,
  kBuff = 7,
  kGoldenrod = 8,
  kRed = 9,
  kIvory = 11,
  kGray = 12,
  kOrange = 13,
};
/// Types and colours that the customer set up, "Custom1" to "Custom7"; of both alike.
constexpr std::int32_t kFirstCustomStock = 15;
constexpr std::int32_t kLastCustomStock = 21;

enum OutputBinCode : std::int32_t {
  kBinAutomatic = 1,
  kBinTop = 2,
  kBinTopAlso = 3,
  kBinStacker = 4,
  kBinStacker1 = 5,
  kBinStacker2 = 6,
  kBinTop1 = 8,
  kBinTop2 = 9,
};
enum OutputOrderCode : std::int32_t {
  kSameOrderFaceDown = 2,
  kReverseOrderFaceUp = 3,
  kSameOrderFaceUp = 4,
  kReverseOrderFaceDown = 5,
};
enum OffsetCode : std::int32_t {
  kOffsetNone = 2,
  kOffsetSets = 3,
  kOffsetSubsets = 4,
  kOffsetSetsAndSubsets = 5,
};
enum SlipSheetCode : std::int32_t { kSlipSheetsOff = 1, kSlipSheetsOn = 2 };
enum RotationCode : std::int32_t { kRotate0 = 1, kRotate180 = 2 };

/// The finishing preset, named by the values that it makes count.
enum FinishingPreset : std::int32_t {
  kPresetNone = 0,
  kPresetPlain = 1,
  kPresetBookletMaker = 3,
  kPresetStaple = 4,
  kPresetTwoStaples = 9,
  kPresetBind = 14,
  kPresetLetterFold = 18,
  kPresetTemplate = 22,
  kPresetBooklet = 24,
  kPresetStaplesInFold = 25,
  kPresetPunch = 30,
  kPresetPunchLeft = 32,
  kPresetPunchTop = 33,
  kPresetPunchRight = 34,
  kPresetPunchBottom = 35,
  kPresetZFold = 36,
  kPresetFold = 40,
  kPresetPunchStaple = 49,
  kPresetZFoldPunchStaple = 50,
  kPresetZFoldStaple = 51,
  kPresetZFoldPunch = 52,
};
enum StapleCode : std::int32_t {
  kStapleTopLeft = 5,
  kStapleBottomLeft = 6,
  kStapleTopRight = 7,
  kStapleBottomRight = 8,
  kStapleDualLeft = 10,
  kStapleDualTop = 11,
  kStapleDualBottom = 12,
  kStapleDualRight = 13,
  kStapleTripleLeft = 26,
  kStapleTripleTop = 27,
  kStapleTripleBottom = 28,
  kStapleTripleRight = 29,
};
enum PunchCode : std::int32_t {
  kPunchLeft = 32,
  kPunchTop = 33,
  kPunchRight = 34,
  kPunchBottom = 35,
  kPunchWithoutWord = 49,  // the printer has no word for it
};
enum HoleCount : std::int32_t { kTwoHoles = 3, kThreeHoles = 4, kFourHoles = 5 };
enum BindCode : std::int32_t { kBindLeft = 15, kBindRight = 16 };
enum BookletFinish : std::int32_t { kBookletFold = 7, kBookletFoldAndStaple = 8 };
/// Folds without a common name go by the printer's number for them.
enum FoldCode : std::int32_t {
  kFoldC = 19,  // of kPresetLetterFold
  kFoldZ = 20,
  kFold1003 = 41,  // of kPresetFold
  kFold1004 = 42,
  kFoldHalf = 43,
  kFoldHalfAndStaple = 44,
  kFoldCAlso = 45,
  kFold1005 = 46,
  kFoldZAlso = 47,
  kFold1012 = 48,
};
enum ZFoldCode : std::int32_t { kZFold1011 = 38, kZFold1008 = 39 };

// --- Fax ---
//
// The fax keys keep the names under which the dialog knows them.

// A recipient; every value is a string.
inline constexpr char kFaxRecipientFirstNameProperty[] = "FirstName";
inline constexpr char kFaxRecipientLastNameProperty[] = "LastName";
inline constexpr char kFaxRecipientFaxNumberProperty[] = "FaxNumber";
inline constexpr char kFaxRecipientFaxNumberLabelProperty[] = "FaxNumberLabel";
inline constexpr char kFaxRecipientOrganizationProperty[] = "Organization";
inline constexpr char kFaxRecipientPhoneNumberProperty[] = "PhoneNumber";
inline constexpr char kFaxRecipientEmailAddressProperty[] = "EmailAddress";
inline constexpr char kFaxRecipientMailboxProperty[] = "Mailbox";
inline constexpr char kFaxRecipientUIDProperty[] = "UID";

// The dialog's interface: nothing of the filter or its tools reads what follows.
inline constexpr char kFaxPromptDuplicateProperty[] = "PromptDuplicate";
inline constexpr char kFaxPromptRemoveProperty[] = "PromptRemove";

/// The custom person property that holds a recipient's mailbox on the printer.
inline constexpr char kZMailboxABProperty[] = "com.zarvo.mailbox";

// Options: how the printer sends.
inline constexpr char kFaxResolutionProperty[] = "Resolution";  // FaxResolution
inline constexpr char kFaxSendSpeedProperty[] = "SendSpeed";    // FaxSendSpeed
inline constexpr char kFaxPrintConfirmationSheetProperty[] = "ConfirmationSheet";
inline constexpr char kFaxCreditCardProperty[] = "CreditCard";              // string
inline constexpr char kFaxSendTimeProperty[] = "SendTime";                  // 1904-based seconds
inline constexpr char kFaxDialingPrefixProperty[] = "DialingPrefix";        // string
inline constexpr char kFaxNewJobResolutionProperty[] = "NewJobResolution";  // FaxNewJobResolution

// Options: the cover sheet. Switches are booleans, texts are strings in the user's language.
inline constexpr char kFaxPrintCoverSheetProperty[] = "CoverSheet";
inline constexpr char kFaxCoverShowSenderProperty[] = "ShowSender";
inline constexpr char kFaxSenderNameProperty[] = "SenderName";
inline constexpr char kFaxSenderOrganizationProperty[] = "SenderOrganization";
inline constexpr char kFaxSenderEmailAddressProperty[] = "SenderEmailAddress";
inline constexpr char kFaxSenderPhoneNumberProperty[] = "SenderPhoneNumber";
inline constexpr char kFaxSenderFaxNumberProperty[] = "SenderFaxNumber";
inline constexpr char kFaxCoverLocalizedPhoneLabel[] = "LocalizedPhoneLabel";
inline constexpr char kFaxCoverLocalizedFaxLabel[] = "LocalizedFaxLabel";
inline constexpr char kFaxCoverLocalizedFromLabel[] = "LocalizedFromLabel";
inline constexpr char kFaxCoverShowRecipientsProperty[] = "ShowRecipients";  // FaxShownRecipients
inline constexpr char kFaxCoverLocalizedToLabel[] = "LocalizedToLabel";
inline constexpr char kFaxCoverCustomRecipientTextProperty[] = "CustomRecipientText";
inline constexpr char kFaxCoverSheetNotesProperty[] = "CoverSheetNotes";
inline constexpr char kFaxCoverLocalizedNotesLabel[] = "LocalizedNotesLabel";
inline constexpr char kFaxCoverShowWatermarkProperty[] = "ShowWatermark";
inline constexpr char kFaxCoverWatermarkNameProperty[] = "WatermarkName";
inline constexpr char kFaxCoverSizeProperty[] = "Size";  // FaxCoverSize

enum FaxResolution : std::int32_t { kFaxStandard = 1, kFaxFine = 2, kFaxSuperfine = 3 };
enum FaxSendSpeed : std::int32_t { kFaxForced4800 = 1, kFax14400 = 2, kFaxAutomatic = 3 };
/// Resolution codes of the printer's page device.
enum FaxNewJobResolution : std::int32_t { kNewJob600Dpi = 2, kNewJob200Dpi = 5 };
enum FaxShownRecipients : std::int32_t {
  kNoRecipients = 1,
  kRecipientNames = 2,
  kCustomRecipients = 3,
};
enum FaxCoverSize : std::int32_t { kFaxCoverLetter = 1, kFaxCoverA4 = 2 };

}  // namespace zarvo
