// SPDX-License-Identifier: Apache-2.0
// What the parts of a job mean, in words.
//
// The names and codes stand here a second time on purpose: they check what the filter wrote, which
// they could not if they were those that it writes by.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zarvo::tool {

/// One thing that a job tells the printer.
struct Statement {
  std::string name;   ///< what it is about, in words
  std::string value;  ///< what it says, as it stands; of a PIN or an account only that it is set
  std::string code;   ///< the PJL attribute or the XML element
  int level = 0;      ///< how deep it is nested
  std::string words = "";  ///< what the value means, where it does not say so itself

  const std::string& Words() const { return words.empty() ? value : words; }
};

/// Statements, and what looks wrong with them.
struct Explanation {
  std::vector<Statement> statements;
  std::vector<std::string> findings;
};

/// Explains the PJL lines of a job, in their order.
Explanation ExplainPjl(const std::vector<std::string>& lines);

/// Explains an XML ticket.
Explanation ExplainTicketXml(std::string_view xml);

/// The names of all statements, and what their codes mean, as far as those are words.
std::vector<std::string> PjlTexts();
std::vector<std::string> TicketXmlTexts();

/// The XML ticket as a reader of XML takes it; the printers read the account's mismatched end tag
/// as it is.
std::string WithMatchingAccountTags(std::string_view xml);

/// "Letter (216 x 279 mm)" for a known size in hundredths of a millimetre, else the millimetres.
std::string SizeWords(long width, long height);

/// A page size in points, in words.
std::string PointSizeWords(int width, int height);

}  // namespace zarvo::tool
