// SPDX-License-Identifier: Apache-2.0
// The writers of the elements of the printer's XML job ticket (JTML), the records that carry values
// to them, and the sink that every writer writes to.
//
// A section of JTML/ reads the ticket, fills a record and calls one writer: it knows the ticket's
// keys and codes, the writer knows the format's elements and words. Every writer turns one record
// or one code into fixed text, hands whole lines to the sink and gives JTML_SUCCESS. The texts are
// fixed by the printer's ticket format, oddities included (tags that do not match, missing line
// feeds, uneven indentation): printers in the field read them so. Unless said otherwise a value
// that is not set, or a code that the format has no word for, writes nothing.
//
// Conventions of all records: texts are zero-terminated UTF-8, already escaped for XML, owned by
// the caller, and must outlive the call; a null text is not set. A freshly made record has nothing
// set: an `int` is -1, a full-colour (`fc`) number is kNotSet, a text is null.
#pragma once

#include <cstdint>
#include <cstdio>

#include "Source/Mappings.h"

namespace zarvo {

// Codes of the records that stand for a choice of the print dialog; -1 is none. Numbers without a
// name here are handed on from the ticket as they are.
enum JtmlFinishing : int {
  kJtmlStapleTopLeft = 0,
  kJtmlStapleTopRight = 1,
  kJtmlStapleBottomLeft = 2,
  kJtmlStapleDualLeft = 3,
  kJtmlStapleDualTop = 4,
  kJtmlStapleDualBottom = 5,
  kJtmlStapleDualRight = 6,
  kJtmlStapleBooklet = 7,
  kJtmlNoFinishing = 9,
  kJtmlFoldBooklet = 10,
  kJtmlFoldC = 11,
  kJtmlFoldZ = 12,
  kJtmlBindLeft = 13,
  kJtmlBindRight = 14,
  kJtmlBookletMaker = 15,
  kJtmlStapleTripleLeft = 16,
  kJtmlStapleTripleTop = 17,
  kJtmlStapleTripleBottom = 18,
  kJtmlStapleTripleRight = 19,
  kJtmlStapleBottomRight = 20,
  kJtmlFold1003 = 21,
  kJtmlFold1004 = 22,
  kJtmlFoldHalf = 23,
  kJtmlFoldHalfAndStaple = 24,
  kJtmlZFold1011 = 25,
  kJtmlZFold1008 = 26,
  kJtmlFoldCAlso = 27,
  kJtmlFold1005 = 28,
  kJtmlFoldZAlso = 29,
  kJtmlFold1012 = 30,
  kJtmlPunchLeft = 31,
  kJtmlPunchTop = 32,
  kJtmlPunchRight = 33,
  kJtmlPunchBottom = 34,
  kJtmlTwoHoles = 35,
  kJtmlThreeHoles = 36,
  kJtmlFourHoles = 37,
  kJtmlPunchWithoutWord = 38,
};
enum JtmlMediaType : int {
  kJtmlStationery = 0,
  kJtmlTransparency = 1,
  kJtmlTabStock = 2,
  kJtmlPreCutTabs = 3,
  kJtmlFullCutTabs = 4,
  kJtmlLabels = 5,
  kJtmlPrePrinted = 6,
  kJtmlRecycled = 7,
  kJtmlEnvelope = 8,
  kJtmlNamedType = 9,
  kJtmlNamedTypeAlso = 10,
  kJtmlOtherType = 11,
  kJtmlBond = 12,
  kJtmlLetterHead = 13,
};
enum JtmlMediaColor : int {
  kJtmlNoColor = 0,
  kJtmlWhite = 1,
  kJtmlPink = 2,
  kJtmlYellow = 3,
  kJtmlBlue = 4,
  kJtmlGreen = 5,
  kJtmlBuff = 6,
  kJtmlGoldenrod = 7,
  kJtmlRed = 8,
  kJtmlIvory = 9,
  kJtmlGray = 10,
  kJtmlOrange = 11,
  kJtmlNamedColor = 12,
};
enum JtmlSides : int { kJtmlOneSided = 0, kJtmlLongEdge = 1, kJtmlShortEdge = 2 };
enum JtmlRotation : int { kJtmlRotate180 = 0, kJtmlRotate0 = 1 };
enum JtmlOutputBin : int {
  kJtmlBinAutomatic = 0,
  kJtmlBinTop = 1,
  kJtmlBinStacker = 2,
  kJtmlBinSide = 3,
  kJtmlBinTop1 = 4,
  kJtmlBinTop2 = 5,
  kJtmlBinStacker1 = 6,
  kJtmlBinStacker2 = 7,
};
enum JtmlOffset : int {
  kJtmlOffsetNone = 0,
  kJtmlOffsetSets = 1,
  kJtmlOffsetSubsets = 2,
  kJtmlOffsetSetsAndSubsets = 3,
  kJtmlOffsetJob = 4,
};
/// How the printer keeps the job; kJtmlNoElement leaves the disposition out.
enum JtmlJobType : int {
  kJtmlPlainJob = 0,
  kJtmlHold = 1,
  kJtmlSaveOnly = 2,
  kJtmlPrintAndSave = 3,
  kJtmlNoElement = 4,
};
enum JtmlSpecialPages : int { kJtmlExceptions = 0, kJtmlInserts = 1 };
enum JtmlCover : int { kJtmlFrontCover = 0, kJtmlBackCover = 1 };
enum JtmlCoverType : int {
  kJtmlNoCover = 0,
  kJtmlCoverBlank = 1,
  kJtmlCoverFront = 2,
  kJtmlCoverBack = 3,
  kJtmlCoverBothSides = 4,
};
/// The highlight map colour that takes its values from the record.
constexpr int kJtmlCustomMapColor = 12;

/// The result of every writer. A writer always gives JTML_SUCCESS: output errors show on the
/// stream, and a value that the format has no word for is left out of the ticket.
enum JtmlGenError { JTML_SUCCESS = 0, JTML_INVALID_KEY, JTML_INVALID_VALUE, JTML_ERROR };
using _JtmlGenError = JtmlGenError;

/// Writes `iNum` bytes of `lpcsData`. Some writers pass a null context and a length of 0, so a
/// sink must go by the terminating zero of the text, not by the length.
using JTMLWRITE = std::int32_t (*)(void* lpdv, const char* lpcsData, std::int32_t iNum);

/// The sink: a function and the context handed back to it.
struct _WRITEDATA {
  void* lpdv = nullptr;
  JTMLWRITE lpfnDevWriteData = nullptr;
};
using JtmlSink = _WRITEDATA;
using LPWRITEDATA = const JtmlSink*;

/// The stream of DevWriteJtml, set before the first writer is called. Not owned.
extern std::FILE* jtml_ofp;

/// The sink function of the filter: writes the whole zero-terminated text to jtml_ofp and returns
/// what fputs returns. The context and the length are ignored.
std::int32_t DevWriteJtml(void* lpdv, const char* lpcsData, std::int32_t iNum);

/// Finishing: choice codes, or the name of a finishing template that replaces them all.
struct _FINISHERDATA {
  int nStapleOptions = -1;
  int nFoldOptions = -1;  ///< folding, booklet and binding
  int nHolePunchOptions = -1;
  int nHolePunchNumHoles = -1;  ///< read only with a punch choice
  const char* szFinishingStr = nullptr;
};
using FinisherData = _FINISHERDATA;
using LPFINISHERDATA = const FinisherData*;

/// Notes that travel with the job.
struct _JOBNOTEDATA {
  const char* strJobMsg = nullptr;  ///< to the operator
  const char* strJobRecipient = nullptr;
  const char* strJobSheetMsg = nullptr;        ///< on the banner sheet
  const char* strJobAdditionalInfo = nullptr;  ///< written as accounting data
};
using JobNoteData = _JOBNOTEDATA;
using LPJOBNOTEDATA = const JobNoteData*;

/// Printer resolution across and along the feed direction, in units of code `nUnit` (3: dots per
/// inch).
struct _RESOLUTIONDATA {
  int nCrossFeed = 0;
  int nFeedDir = 0;
  int nUnit = 0;
};
using ResolutionData = _RESOLUTIONDATA;
using LPRESOLUTIONDATA = const ResolutionData*;

/// Width and height of a medium in hundredths of a millimetre; 0 is not set.
struct _XSIZE {
  std::uint32_t cx = 0;
  std::uint32_t cy = 0;
};
using XSIZE = _XSIZE;

/// A medium.
struct _MEDIADATA {
  int nMediaType = -1;
  int nMediaColor = -1;
  int nOrderCount = -1;  ///< sheets in an ordered set of tabs
  int nHoleCount = -1;
  int nPrePrinted = -1;
  int nRecycledType = -1;
  const char* strMediaType = nullptr;   ///< a type given by name
  const char* strMediaColor = nullptr;  ///< a colour given by name
  const char* strMediaDescription = nullptr;
  int nWeight = -1;  ///< grams per square metre
  XSIZE MediaSize;
  int nFinish = -1;
  int nGrain = -1;
  int nSidesCoated = -1;  ///< 2 front, 3 back, anything else both
  int nCoatingType = -1;
  const char* strMediaName = nullptr;
  int nSource = -1;  ///< 0 post-fuser inserter, 1 and up a tray
};
using MediaData = _MEDIADATA;
using LPMEDIADATA = const MediaData*;

/// The settings of a page exception, or the colour settings of the whole job.
struct _PAGEDATA {
  int nInDocUB = -1, nInDocLB = -1;
  std::int32_t nPagesUB = -1, nPagesLB = -1;  ///< pages count from 1
  bool bIsLightenDark = false;                ///< nAdjustLightness holds a value
  int nAdjustLightness = -1;
  bool bImageShift = false;  ///< the four shifts hold values
  std::int32_t nXSide1ImgShift = 0, nXSide2ImgShift = 0;
  std::int32_t nYSide1ImgShift = 0, nYSide2ImgShift = 0;
  int nSides = -1;

  int hlcPrintingColor = -1;
  int hlcMappingColor = -1;
  int hlcMismatchAction = -1;
  int hlcMappingAlgorithm = -1;
  bool isRGB = false;  ///< the custom colour is in hlcRGB, else in hlcHSV
  int hlcRGB[3] = {};
  int hlcHSV[3] = {};

  std::int32_t fcLightness = kNotSet, fcContrast = kNotSet, fcSaturation = kNotSet;
  std::int32_t fcCyanRed = kNotSet, fcMagentaGreen = kNotSet, fcYellowBlue = kNotSet;
  std::int32_t fcTrapping = kNotSet;
  std::int32_t fcTrappingFastDirection = kNotSet, fcTrappingSlowDirection = kNotSet;
  std::int32_t fcBlackOverprint = kNotSet;
  const char* fcTRC = nullptr;  ///< name of a tone reproduction curve
  // A source or destination profile is given by code or by name; "Images" is for images,
  // "TextGraphics" for text and graphics.
  std::int32_t fcRGBImagesNumber = kNotSet;
  const char* fcRGBImagesString = nullptr;
  std::int32_t fcRGBTextGraphicsNumber = kNotSet;
  const char* fcRGBTextGraphicsString = nullptr;
  std::int32_t fcCMYKImagesNumber = kNotSet;
  const char* fcCMYKImagesString = nullptr;
  std::int32_t fcCMYKTextGraphicsNumber = kNotSet;
  const char* fcCMYKTextGraphicsString = nullptr;
  const char* fcGrayImagesString = nullptr;
  const char* fcGrayTextGraphicsString = nullptr;
  std::int32_t fcDestinationNumber = kNotSet;
  const char* fcDestinationString = nullptr;
  std::int32_t fcImageRendering = kNotSet, fcTextRendering = kNotSet;
  std::int32_t fcGraphicsRendering = kNotSet;
  std::int32_t fcAntiAliasing = kNotSet, fcHalftone = kNotSet, fcOutputColor = kNotSet;
};
using PageData = _PAGEDATA;
using LPPAGEDATA = const PageData*;

/// How the printer keeps or holds the job.
struct _JOBDATA {
  int nJobType = -1;
  int nMIMEMediaType = -1;
  const char* strSavedJobName = nullptr;
  const char* strSavedLocation = nullptr;  ///< a URI
};
using JobData = _JOBDATA;
using LPJOBDATA = const JobData*;

/// Background forms: storing the job as a form, or printing a stored form behind it.
struct _BGFORMSDATA {
  const char* strNewFormName = nullptr;
  const char* strExistingFormName = nullptr;
  int nCyclePages = 0;
  std::int32_t nXSide1ImgShift = 0;
  std::int32_t nYSide1ImgShift = 0;
};
using FormsData = _BGFORMSDATA;
using LPBGFORMSDATA = const FormsData*;

}  // namespace zarvo
