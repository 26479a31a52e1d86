// SPDX-License-Identifier: Apache-2.0
#include "Source/Mappings.h"

#include <span>

namespace zarvo {
namespace {

struct CodeName {
  long code;
  const char* name;
};

constexpr CodeName kColorNames[] = {
    {1, "White"},    {2, "Blue"},     {3, "Yellow"},    {4, "Green"},    {5, "Pink"},
    {6, "Clear"},    {7, "Buff"},     {8, "Goldenrod"}, {9, "Red"},      {11, "Ivory"},
    {12, "Gray"},    {13, "Orange"},  {15, "Custom1"},  {16, "Custom2"}, {17, "Custom3"},
    {18, "Custom4"}, {19, "Custom5"}, {20, "Custom6"},  {21, "Custom7"},
};

constexpr CodeName kTypeNames[] = {
    {1, "Standard"},  {2, "Transparency"}, {3, "Preprinted"}, {8, "Envelopes"}, {9, "Labels"},
    {10, "Recycled"}, {15, "Custom1"},     {16, "Custom2"},   {17, "Custom3"},  {18, "Custom4"},
    {19, "Custom5"},  {20, "Custom6"},     {21, "Custom7"},   {24, "Tabs"},
};

const char* NameOf(std::span<const CodeName> names, long code, const char* otherwise) {
  for (const CodeName& entry : names) {
    if (entry.code == code) return entry.name;
  }
  return otherwise;
}

}  // namespace

// clang-format off
const StockSize CompleteStockSizeMap[] = {
    {"PrinterDefault", kNotSet, nullptr, kNotSet, kNotSet, kNotSet, kNotSet},
    {"LetterStockSize", 1, nullptr, 21600, 27900, 612, 792},
    {"LegalStockSize", 2, nullptr, 21600, 35600, 612, 1008},
    {"TabloidStockSize", 3, nullptr, 27900, 43200, 792, 1224},
    {"Postcard (4 x 6\")", 59, nullptr, 10200, 15200, 288, 432},
    {"Postcard (5 x 7\")", 41, nullptr, 12700, 17800, 360, 504},
    {"Statement (5.5 x 8.5\")", 17, nullptr, 14000, 21600, 396, 612},
    {"Postcard (6 x 9\")", 62, nullptr, 15200, 22900, 432, 648},
    {"7 x 10\"", 28, nullptr, 17800, 25400, 504, 720},
    {"Executive (7.25 x 10.5\")", 21, nullptr, 18400, 26700, 522, 756},
    {"StockSize8x10", 10, nullptr, 20300, 25400, 576, 720},
    {"StockSize8x13", 13, nullptr, 20300, 33000, 576, 936},
    {"StockSize8.5x13", 12, nullptr, 21600, 33000, 612, 936},
    {"StockSize9x11", 8, nullptr, 22900, 27900, 648, 792},
    {"9 x 14\"", 36, nullptr, 22900, 35600, 648, 1008},
    {"9.5 x 11\"", 48, nullptr, 24100, 27900, 684, 792},
    {"2 up 6 x 9", 54, nullptr, 24100, 31800, 684, 900},
    {"11 x 15\"", 63, nullptr, 27900, 38100, 792, 1080},
    {"12x18StockSize", 11, nullptr, 30500, 45700, 864, 1296},
    {"12 x 18.5\"", 38, nullptr, 30500, 47000, 864, 1332},
    {"12.6 x 18.5\"", 49, nullptr, 32000, 47000, 907, 1332},
    {"12 x 19\"", 71, nullptr, 30500, 48300, 864, 1368},
    {"12.6 x 19.2\"", 64, nullptr, 32000, 48800, 907, 1382},
    {"13 x 18\"", 65, nullptr, 33000, 45700, 935, 1296},
    {"13 x 19\"", 66, nullptr, 33000, 48300, 935, 1368},
    {"A4StockSize", 4, nullptr, 21000, 29700, 595, 842},
    {"A3StockSize", 5, nullptr, 29700, 42000, 842, 1191},
    {"A5 (148 x 210 mm)", 18, nullptr, 14800, 21000, 420, 595},
    {"A6 (105 x 148 mm)", 40, nullptr, 10500, 14800, 297, 420},
    {"B3 (105 x 148 mm)", 70, nullptr, 35300, 50000, 1001, 1417},
    {"B4 (250 x 353 mm)", 14, nullptr, 25000, 35300, 709, 1001},
    {"JIS B4 (257 x 364 mm)", 56, nullptr, 25700, 36400, 729, 1032},
    {"JIS B5 (182 x 257 mm)", 55, nullptr, 18200, 25700, 516, 729},
    {"JIS B6 (128 x 182 mm)", 57, nullptr, 12800, 18200, 363, 516},
    {"StockSize223x297", 7, nullptr, 22300, 29700, 632, 842},
    {"Oversized A5 (161 x 210 mm)", 19, nullptr, 16100, 21000, 456, 595},
    {"Postcard (100 x 148 mm)", 60, nullptr, 10000, 14800, 284, 420},
    {"Postcard (148 x 200 mm)", 61, nullptr, 14800, 20000, 420, 567},
    {"SRA3 (320 x 450 mm)", 15, nullptr, 32000, 45000, 907, 1276},
    {"SRA4", 47, nullptr, 22500, 32000, 638, 907},
    {"8K (267 x 388 mm)", 23, nullptr, 26700, 38800, 757, 1099},
    {"8K (270 x 390 mm)", 67, nullptr, 27000, 39000, 765, 1105},
    {"16K (194 x 267 mm)", 29, nullptr, 19400, 26700, 550, 757},
    {"16K (195 x 270 mm)", 68, nullptr, 19500, 27000, 553, 765},
    {"210 x 270 mm", 30, nullptr, 21000, 27000, 595, 765},
    {"210 x 330 mm", 31, nullptr, 21000, 33000, 595, 936},
    {"215 x 275 mm", 32, nullptr, 21500, 27500, 609, 780},
    {"215 x 315 mm", 22, nullptr, 21500, 31500, 609, 893},
    {"220 x 330 mm", 24, nullptr, 22000, 33000, 624, 936},
    {"226 x 310 mm", 35, nullptr, 22600, 31000, 640, 878},
    {"252 x 358 mm", 37, nullptr, 25200, 35800, 713, 1015},
    {"310 x 432 mm", 39, nullptr, 31000, 43200, 878, 1224},
    {"328 x 453 mm", 72, nullptr, 32800, 45300, 930, 1284},
    {"Envelope (6 x 9\")", 25, nullptr, 15200, 22900, 432, 648},
    {"Envelope (9 x 12\")", 26, nullptr, 22900, 30500, 648, 864},
    {"Envelope (120 x 235 mm)", 69, nullptr, 12000, 23500, 340, 666},
    {"Envelope (220 x 312 mm)", 27, nullptr, 22000, 31200, 624, 884},
    {"Envelope C4 (229 x 324 mm)", 58, nullptr, 22900, 32400, 649, 919},
    {"Envelope C5 (162 x 229 mm)", 20, nullptr, 16200, 22900, 459, 649},
    {"Envelope Open Catalog (6 x 9\")", 50, nullptr, 15200, 27300, 432, 774},
    {"Envelope Open Catalog (7 x 10\")", 52, nullptr, 17800, 30500, 504, 864},
    {"Envelope Open Catalog (178 x 254 mm)", 53, nullptr, 17800, 28700, 504, 814},
    {"Envelope Open Catalog C5 (162 x 229 mm)", 51, nullptr, 16200, 26200, 459, 742},
    {"Postcard (4 x 6\")", 43, nullptr, 11400, 15200, 324, 432},
    {"8.5 x 13\"", 16, nullptr, 21600, 33000, 612, 936},
    {"No. 10 Envelope (4.125 x 9.5\")", 45, nullptr, 10500, 24100, 297, 684},
    {"Monarch Envelope (3.875 x 7.5\")", 44, nullptr, 9800, 19100, 279, 540},
    {"DL Envelope (110 x 220 mm)", 46, nullptr, 11000, 22000, 312, 624},
    {"5.5 x 7 Stock Size", 76, nullptr, 14000, 17800, 396, 504},
    {"Custom", 75, nullptr, 0, 0, 0, 0},
    {nullptr, 0, nullptr, 0, 0, 0, 0},
};
// clang-format on

bool GetStockDimensionsForSize(std::int32_t size, std::int32_t* width, std::int32_t* height) {
  const StockSize* row = CompleteStockSizeMap;
  while (row->code != size && row->code != 0) ++row;
  *width = row->width;
  *height = row->height;
  return row->code != 0;
}

const char* ColorToString(long color) { return NameOf(kColorNames, color, "Unspecified"); }

const char* TypeToString(long type) { return NameOf(kTypeNames, type, "System-default"); }

}  // namespace zarvo
