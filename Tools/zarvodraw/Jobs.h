// SPDX-License-Identifier: Apache-2.0
// The jobs of the drawing helper. Each writes its result to standard output, logs one line when it
// fails, and returns the exit status.
#pragma once

namespace zarvo {

constexpr int kJobDone = 0;
constexpr int kJobFailed = 1;  // and logged: the caller need not log it again
constexpr int kBadUsage = 2;

/// image FILE: decodes a PNG, JPEG, TIFF, GIF or BMP image and writes it as a binary PPM of 8 bits
/// per component, transparent parts over white.
int RunImageJob(char** arguments);

/// faxcover: reads the description of a fax cover sheet, a property list, from standard input and
/// writes the sheet as a PDF document of one page.
int RunFaxCoverJob(char** arguments);

}  // namespace zarvo
