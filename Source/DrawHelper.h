// SPDX-License-Identifier: Apache-2.0
// The program that draws: everything that decodes images or lays text out runs in a process of its
// own, so that a hostile image can neither crash the filter nor fill its memory.
#pragma once

#include <cstdio>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Platform/Failure.h"
#include "Platform/Process.h"
#include "Source/FaxCover.h"

namespace zarvo {

/// The helper's path: beside the running program when it is there (a build tree), else where it is
/// installed. Neither the search path nor the environment has a say, because jobs must not choose
/// what runs.
std::string DrawHelperPath();

/// Starts the helper with a job's name and arguments, `input_fd` as its standard input (-1 for
/// none) and `data_fd` as its kDataFd, under the limits that every drawing job has: 60 seconds of
/// processor time, 2 minutes in all (the environment may name another time) without what the reader
/// takes for itself, 1.5 GiB of memory (an image of 100 megapixels needs half of that). Of the
/// environment it gets what concerns language, time zone and fonts. Nothing, with errno set, when
/// it cannot be started.
std::optional<Process> StartDrawHelper(std::vector<std::string> job, int input_fd = -1,
                                       int data_fd = -1);

/// Starts the decoding of the image at `path`, which is opened here: the helper may open nothing.
/// `form` is "ppm" or "pam". Nothing, and one log line, when that is not possible.
std::optional<Process> StartImageDecoder(const char* path, const char* form);

/// The log line of an image that is left out.
void LogImageFailure(const char* path, const std::string& reason);

/// Waits for a decoder that gave less than an image, and logs why unless it has done so itself or
/// only lost its reader.
void LogDecoderFailure(const char* path, Process& decoder);

/// A fax cover sheet while helpers draw it: one the page, and one decodes the watermark's image.
class FaxCoverDrawing {
 public:
  /// An image that cannot be read is logged and left out. `required` says whether a job that lacks
  /// the page is refused; the helper's log line has it in its words.
  static Failure Start(const FaxCover& cover, bool required,
                       std::optional<FaxCoverDrawing>* drawing);

  /// The page as PDF, as Process::output.
  std::FILE* output() { return page_.output(); }
  /// As Process::Wait.
  int Wait();

 private:
  FaxCoverDrawing(Process page, std::optional<Process> decoder, std::string image)
      : decoder_(std::move(decoder)), page_(std::move(page)), image_(std::move(image)) {}

  std::optional<Process> decoder_;
  Process page_;
  std::string image_;  // its path
};

}  // namespace zarvo
