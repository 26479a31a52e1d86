// SPDX-License-Identifier: Apache-2.0
// Secrets and faxes fail closed: whoever gives a PIN gets a secure job or none, and a fax comes out
// on no paper.
//
// A PIN arrives by a choice of the PPD, by the spooler's option "job-password", or by the ticket.
// The first two are typed by people and take digits only. The ticket's may be any text; but the
// printer gets it scrambled, and what the scrambling makes of some letters ends the text, or the
// line that it stands in. Where the ways disagree, or where a PIN cannot be read or kept, nothing
// is printed.
#pragma once

#include <cups/cups.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "CUPSFilter/Options/QueuePolicy.h"
#include "Platform/Phrase.h"
#include "Platform/Value.h"

namespace zarvo {

/// The PPD's options for a PIN and a fax number.
inline constexpr char kPinOption[] = "JobPIN";
inline constexpr char kFaxNumberOption[] = "FaxNumber";

/// What people type as a PIN; the PPD says the same of its option.
inline constexpr std::size_t kShortestPin = 4;
inline constexpr std::size_t kLongestPin = 10;
inline constexpr std::string_view kPinRule = PhraseText("a PIN takes 4 to 10 digits");
inline constexpr std::string_view kPinDigits = PhraseText("4 to 10 digits");
static_assert(kPinRule.ends_with(kPinDigits));

/// What a job asks for, as it came.
struct JobRequest {
  std::span<const cups_option_t> own;         ///< the job's options
  std::span<const cups_option_t> chosen;      ///< the ticket options of the PPD's marked choices
  std::span<const std::string_view> leftOut;  ///< names of ticket options that have no place in it
};

/// All texts are for people, tell what to do, and hold no secret.
struct Judgement {
  std::string refusal;               ///< why the job must not be printed; empty when it may
  std::vector<std::string> notices;  ///< what will not be as it was asked for
};

/// Judges the job's PIN. A PIN that only the spooler's option gives is put into the ticket, and a
/// job that has a PIN and no job type becomes a secure one.
Judgement JudgePin(const JobRequest& request, const QueuePolicy& policy, Dictionary* ticket);

/// Judges whether a job that is to be a fax can be sent to all its recipients.
Judgement JudgeFax(const JobRequest& request, const Dictionary& ticket);

/// Whether a job asks, in any way, to be kept from others' eyes or to come out on no paper here: it
/// gives a PIN, or is to be secure or a fax. For queues whose PPD cannot be read.
bool AsksForSecrecy(const JobRequest& request, const Dictionary& ticket);

/// Whether the value of an option of that name is a PIN, or was meant as one. Names of the
/// spooler's and the PPD's options count in any letter case.
bool CarriesPin(std::string_view option);

/// What is wrong with a PIN that people type; empty when nothing is.
std::string TypedPinFault(std::string_view pin);

/// What becomes of a ticket's PIN on its way to the printer.
enum class ScrambledPin {
  kWhole,
  kCut,     ///< the printer gets only the beginning, or nothing
  kUnsafe,  ///< it would end the line that it stands in
};
ScrambledPin WhatScramblingMakes(std::string_view pin);

}  // namespace zarvo
