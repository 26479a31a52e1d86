// SPDX-License-Identifier: Apache-2.0
// The writers of the elements of the printer's XML job ticket (JTML).
//
// Every writer turns one record or one code into fixed text, hands whole lines to the sink and
// gives JTML_SUCCESS. The texts are fixed by the printer's ticket format, oddities included (tags
// that do not match, missing line feeds, uneven indentation): printers in the field read them so.
// Unless said otherwise a value that is not set, or a code that the format has no word for, writes
// nothing.
#pragma once

#include "CUPSFilter/jtmlgen/Jtmlgen.h"

namespace zarvo {

// --- Frame.cpp: the document around the elements ---

/// XML declaration, document type and root start tag. `dtdFileVer` 0 to 5 picks the version of
/// the document type; any other value leaves that line out.
JtmlGenError WriteJtmlHeader(LPWRITEDATA lpWriteData, int dtdFileVer);
/// The operation attributes: job name and user; or, when `bJobRecipient` is 1, one recipient
/// element that holds the user name. A null text is written empty.
JtmlGenError WriteJtmlOpAttrib(LPWRITEDATA lpWriteData, int bJobRecipient, const char* szJobName,
                               const char* szUserName);
JtmlGenError WriteJtmlJobAttribStart(LPWRITEDATA lpWriteData);
JtmlGenError WriteJtmlJobAttribEnd(LPWRITEDATA lpWriteData);
/// The root end tag, without a line feed: the job follows on the same line.
JtmlGenError WriteJtmlTrailer(LPWRITEDATA lpWriteData);

// --- Commands.cpp: elements of one value ---

/// What WriteJtmlCommands writes; the numbers are shared with the code that fills the records.
enum JtmlCommand : int {
  kJtmlCopies = 0,
  kJtmlSheetCollate = 1,
  kJtmlSides = 2,
  kJtmlOrientation = 3,
  kJtmlOutputBin = 4,
  kJtmlDarknessValue = 5,
  kJtmlTonerSaver = 6,
  kJtmlJobOffset = 7,
  kJtmlPagesPerSubset = 8,
  kJtmlDarknessMode = 9,
  kJtmlPageRotation = 10,
  kJtmlSeparatorSheets = 11,
  kJtmlOpiInsertion = 12,
  kJtmlOpiPreScan = 13,
  kJtmlAntiAliasing = 14,
  kJtmlHalftone = 15,  ///< writes nothing; the screens have a writer of their own
  kJtmlLightness = 16,
  kJtmlContrast = 17,
  kJtmlSaturation = 18,
  kJtmlCyanRed = 19,
  kJtmlMagentaGreen = 20,
  kJtmlYellowBlue = 21,
  kJtmlTrapping = 22,
  kJtmlTrapWidthFast = 23,
  kJtmlTrapWidthSlow = 24,
  kJtmlBlackOverprint = 25,
  kJtmlRenderingImages = 26,
  kJtmlRenderingText = 27,
  kJtmlRenderingGraphics = 28,
  kJtmlPageDelivery = 29,
  kJtmlColorEffects = 30,
};
/// One element chosen by a JtmlCommand. `value` is a number or the code of a keyword.
JtmlGenError WriteJtmlCommands(LPWRITEDATA lpWriteData, int enumCommand, int value);

// --- Finishing.cpp ---

/// The finishing template, or the set of the staple, fold and punch codes. A code that the format
/// has no word for repeats the line written last. Logs the codes of a set.
JtmlGenError WriteJtmlFinishing(LPWRITEDATA lpWriteData, LPFINISHERDATA lpFinisherData);

// --- Job.cpp: the job as a whole ---

JtmlGenError WriteJtmlJobNotes(LPWRITEDATA lpWriteData, LPJOBNOTEDATA lpJobNoteData);
/// How the printer keeps the job; a null name or location of a saved job is written empty.
JtmlGenError WriteJtmlJobTypes(LPWRITEDATA lpWriteData, LPJOBDATA lpJobData);
/// The accounting identities; a null text is written empty.
JtmlGenError WriteJtmlAccounting(LPWRITEDATA lpWriteData, const char* inUserID,
                                 const char* inAccountID);
/// The pages to print, counted from 1; always written.
JtmlGenError WriteJtmlPageRanges(LPWRITEDATA lpWriteData, std::int32_t fromPage,
                                 std::int32_t toPage);

// --- BackgroundForms.cpp ---

/// Form names are cut to 255 bytes, the longest name that the form repository takes, without
/// leaving half a character or half an entity.
JtmlGenError WriteJtmlBackgroundForms(LPWRITEDATA lpWriteData, LPBGFORMSDATA lpBGFormsData);

// --- PageImage.cpp ---

/// The printer resolution; always written.
JtmlGenError WriteJtmlResolution(LPWRITEDATA lpWriteData, LPRESOLUTIONDATA lpResData);
/// The image shift of the job, in the ticket's own unit; always written.
JtmlGenError WriteJtmlImageShift(LPWRITEDATA lpWriteData, std::int32_t nXside1,
                                 std::int32_t nXside2, std::int32_t nYside1, std::int32_t nYside2);

// --- HalfTone.cpp ---

/// One halftone screen, by its code 1 to 47, for graphics, images and text.
JtmlGenError WriteJtmlHalfTone(LPWRITEDATA lpWriteData, int nSelection);

// --- FullColor.cpp ---

/// Every full-colour field (`fc`) of the record that is set.
JtmlGenError WriteJtmlFullColor(LPWRITEDATA lpWriteData, LPPAGEDATA lpPageData);
JtmlGenError WriteJtmlTRC(LPWRITEDATA lpWriteData, const char* szTRCName);
// The profile writers write one element named `szJTMLName`. `nSource` is the code of a profile
// that the printer knows, or 0 for the profile named `szName` (none when null).
JtmlGenError WriteJtmlRGBSource(LPWRITEDATA lpWriteData, int nSource, const char* szJTMLName,
                                const char* szName);
JtmlGenError WriteJtmlCMYKSource(LPWRITEDATA lpWriteData, int nSource, const char* szJTMLName,
                                 const char* szName);
JtmlGenError WriteJtmlGraySource(LPWRITEDATA lpWriteData, const char* szJTMLName,
                                 const char* szName);
/// Any code but 0 leaves the choice to the printer; that form ends without a line feed.
JtmlGenError WriteJtmlColorDestination(LPWRITEDATA lpWriteData, int nSource, const char* szJTMLName,
                                       const char* szName);

// --- HighlightColor.cpp ---

/// Every highlight-colour field (`hlc`) of the record that is set. A code that the format has no
/// word for repeats the word written last.
JtmlGenError WriteJtmlHLC(LPWRITEDATA lpWriteData, LPPAGEDATA lpPageData);

// --- SpecialPages.cpp ---

/// Start and end of a list of special pages; `nSPOption` is a JtmlSpecialPages.
JtmlGenError WriteJtmlSpecialPagesStart(LPWRITEDATA lpWriteData, int nSPOption);
JtmlGenError WriteJtmlSpecialPagesEnd(LPWRITEDATA lpWriteData, int nSPOption);
/// A cover; `nCovers` is a JtmlCover, `nCoverType` a JtmlCoverType.
JtmlGenError WriteJtmlCovers(LPWRITEDATA lpWriteData, int nCovers, int nCoverType,
                             LPMEDIADATA lpMediaData);
/// `nInsertCount` sheets behind page `nInsertAfter`.
JtmlGenError WriteJtmlInserts(LPWRITEDATA lpWriteData, int nInsertAfter, int nInsertCount,
                              LPMEDIADATA lpMediaData);
/// A range of pages with settings of its own.
JtmlGenError WriteJtmlPageExceptions(LPWRITEDATA lpWriteData, LPPAGEDATA lpPageData,
                                     LPMEDIADATA lpMediaData);

// --- Media.cpp ---

/// A medium: its tray alone when that is set, else its name alone when there is one, else all
/// that is known of it.
JtmlGenError WriteJtmlMedia(LPWRITEDATA lpWriteData, LPMEDIADATA lpMediaData);

}  // namespace zarvo
