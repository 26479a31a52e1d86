// SPDX-License-Identifier: Apache-2.0
// The jobs of the drawing helper. Each writes its result to standard output, logs one line when it
// fails, and returns the exit status.
#pragma once

namespace zarvo {

constexpr int kJobDone = 0;
constexpr int kJobFailed = 1;  // and logged: the caller need not log it again
constexpr int kBadUsage = 2;

/// image FORM NAME: decodes the image (see ImageFile.h) on standard input. FORM "ppm"
/// writes it as a binary PPM, transparent parts over white, "pam" as a PAM with its transparency;
/// both have 8 bits per component. NAME is what log lines call it.
int RunImageJob(char** arguments);

/// faxcover NEED: reads the description of a fax cover sheet, a property list, from standard input
/// and writes the sheet as a PDF document of one page. A watermark's image is read as a PAM from
/// kDataFd. NEED says what becomes of a job without the sheet: "optional", it goes out, or
/// "required", it does not.
int RunFaxCoverJob(char** arguments);

/// check TASK: locks itself in as for decoding an "image" or drawing a "page", tries what is
/// forbidden then, and writes a line for each layer ("on" or "off") and each attempt ("refused" or
/// "possible").
int RunCheckJob(char** arguments);

}  // namespace zarvo
