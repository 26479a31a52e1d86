// SPDX-License-Identifier: Apache-2.0
// How pages lie, from what programs of many kinds begin with.
#include "CUPSFilter/Watermark/PageTurn.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zarvo {
namespace {

TEST(PageTurn, FollowsMostOfTheText) {
  const std::string upright = "BT 1 0 0 1 72 720 Tm (The head of an upright page) Tj ET\n";
  const std::string body = "(" + std::string(200, 'x') + ") Tj\n";
  const std::string filler(7000, ' ');
  struct Row {
    std::string page;
    int turn;
  };
  const std::vector<Row> rows = {
      {upright + body, 0},
      {upright + "q 1 0 0 1 72 -0.5 cm " + body, 0},
      {upright + "(10 m of cm and Tm, concatenated, rotates slowly) Tj " + body, 0},
      // A table that lies on its side below the head of an upright page.
      {upright + "q 0 1 -1 0 300 100 cm " + body, 1},
      {upright + "q [0 1 -1 0 300 100] cm " + body, 1},
      {upright + "q [0\n-1\n1\n0\n300\n100\n]\nconcat " + body, 3},
      {upright + filler + "BT 0 1 -1 0 72 720 Tm " + body, 1},
      {upright + "-1 0 0 -1 0 0 cm " + body, 2},
      {upright + "1e-3 1 -1 1e-3 0 0 Tm " + body, 1},
      {upright + "90 rotate " + body, 1},
      {upright + "-90 rotate " + body, 3},
      {upright + "0 1 -1 0 0 0 cm" + body, 1},
      {upright + "-595 sl " + body, 1},
      {upright + "47 sl " + body, 0},
      {"TeXDict begin @landscape 1 0 bop -450 -367 a Fi(Quick)27 b(reference)43 b " + body, 3},
      // Back to what was before: the head alone was turned.
      {"q 0 1 -1 0 0 0 cm (a note at the margin) Tj Q " + body, 0},
      // Letters that are pictures, each at a place of its own, upwards.
      {"1 0 0 1 9 9 Tm (a) Tj 0 5 Td (b) Tj 0 5 Td (c) Tj", 1},
  };
  for (const Row& row : rows) EXPECT_EQ(LookAtPage(row.page).turn, row.turn) << row.page;
}

}  // namespace
}  // namespace zarvo
