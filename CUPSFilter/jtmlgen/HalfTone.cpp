// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/jtmlgen/HalfTone.h"

#include "CUPSFilter/jtmlgen/Emit.h"

namespace zarvo {
namespace {

// Codes 16, 17, 30 and 31 name the screens of 1, 2, 3 and 5 again.
constexpr Keyword kScreens[] = {
    {1, "85-lpi"},           {2, "106-lpi"},           {3, "125-lpi"},
    {4, "134-lpi"},          {5, "156-lpi"},           {6, "200-dpi"},
    {7, "150-dpi"},          {8, "200-lpi"},           {9, "300-lpi"},
    {10, "600-lpi"},         {11, "300-dpi"},          {12, "600-dpi"},
    {13, "175-dpi"},         {14, "stochastic"},       {15, "53-lpi"},
    {16, "85-lpi"},          {17, "106-lpi"},          {18, "71-lpi"},
    {19, "85-lpi-enhanced"}, {20, "106-lpi-enhanced"}, {21, "120-lpi"},
    {22, "141-lpi"},         {23, "56-lpi"},           {24, "60-lpi"},
    {25, "107-lpi-normal"},  {26, "107-lpi-light"},    {27, "107-lpi-dark"},
    {28, "151-lpi"},         {29, "42-lpi"},           {30, "125-lpi"},
    {31, "156-lpi"},         {32, "54-lpi"},           {33, "85-lpi-normal"},
    {34, "85-lpi-light"},    {35, "85-lpi-dark"},      {36, "106-lpi-normal"},
    {37, "106-lpi-light"},   {38, "106-lpi-dark"},     {39, "120-lpi-normal"},
    {40, "120-lpi-light"},   {41, "120-lpi-dark"},     {42, "125-lpi-normal"},
    {43, "125-lpi-light"},   {44, "125-lpi-dark"},     {45, "134-lpi-normal"},
    {46, "134-lpi-light"},   {47, "134-lpi-dark"},
};

}  // namespace

JtmlGenError WriteJtmlHalfTone(const JtmlSink* sink, int nSelection) {
  std::string text;
  if (const char* screen = FindKeyword(kScreens, nSelection)) {
    for (const char* element : {"halftone-graphics", "halftone-images", "halftone-text"}) {
      text += Element(2, element, Syntax::kKeyword, screen);
    }
  }
  Send(sink, text);
  return JTML_SUCCESS;
}

}  // namespace zarvo
