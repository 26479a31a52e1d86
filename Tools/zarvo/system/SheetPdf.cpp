// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/system/SheetPdf.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <map>
#include <memory>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

namespace zarvo::tool {
namespace {

/// A number for a page description; whole and half points are enough.
std::string InPoints(double points) {
  const long halves = static_cast<long>(points * 2);
  return std::to_string(halves / 2) + (halves % 2 != 0 ? ".5" : "");
}

/// A text as a PDF string in the encoding of the standard fonts, which know Latin letters only.
std::string PdfText(const std::string& utf8) {
  std::string text = "(";
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const auto byte = static_cast<unsigned char>(utf8[i]);
    char c = utf8[i];
    if (byte >= 0x80) {
      const bool latin = (byte == 0xC2 || byte == 0xC3) && i + 1 < utf8.size();
      c = '?';
      if (latin) c = static_cast<char>((byte & 3) << 6 | (utf8[i + 1] & 0x3F));
      while (i + 1 < utf8.size() && (utf8[i + 1] & 0xC0) == 0x80) ++i;
    } else if (byte < ' ') {
      c = ' ';
    }
    if (c == '(' || c == ')' || c == '\\') text += '\\';
    text += c;
  }
  return text + ")";
}

QPDFObjectHandle Helvetica() {
  return QPDFObjectHandle::parse(
      "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica /Encoding /WinAnsiEncoding >>");
}

/// The lines of the margin, none longer than fits: Helvetica's letters are about half as wide as
/// high.
std::vector<std::string> Folded(const std::vector<std::string>& notes, double size, double width) {
  const std::size_t longest = std::max<std::size_t>(static_cast<std::size_t>(width / size * 2), 8);
  std::vector<std::string> lines;
  for (std::string rest : notes) {
    while (rest.size() > longest) {
      std::size_t end = rest.rfind(' ', longest);
      if (end == std::string::npos || end < 8) end = longest;
      lines.push_back(rest.substr(0, end));
      rest = "    " + rest.substr(std::min(rest.find_first_not_of(' ', end), rest.size()));
    }
    lines.push_back(rest);
  }
  return lines;
}

class Sheets {
 public:
  Sheets() { pdf_.emptyPDF(); }

  void Add(const SheetSide& side) {
    if (side.file.empty()) return AddNamed(side);
    QPDFPageObjectHelper& page = Source(side.file).at(side.page);
    if (side.turn == 0 && side.notes.empty())
      return QPDFPageDocumentHelper(pdf_).addPage(page, false);
    Place(page, side);
  }

  void Write(const std::string& output) {
    QPDFWriter writer(pdf_, output.c_str());
    writer.write();
  }

 private:
  std::vector<QPDFPageObjectHelper>& Source(const std::string& file) {
    Input& input = inputs_[file];
    if (!input.pdf) {
      input.pdf = std::make_unique<QPDF>();
      input.pdf->setSuppressWarnings(true);
      input.pdf->processFile(file.c_str());
      input.pages = QPDFPageDocumentHelper(*input.pdf).getAllPages();
    }
    return input.pages;
  }

  /// Makes the page a drawing on a new one, which has room for the notes.
  void Place(QPDFPageObjectHelper& page, const SheetSide& side) {
    const QPDFObjectHandle::Rectangle box = page.getMediaBox(true).getArrayAsRectangle();
    const double width = box.urx - box.llx;
    const double height = box.ury - box.lly;
    const QPDFObjectHandle form = pdf_.copyForeignObject(page.getFormXObjectForPage(false));
    const double shown_width = side.turn != 0 ? height : width;
    const double shown_height = side.turn != 0 ? width : height;
    const double size = std::clamp(shown_width / 60, 6.0, 24.0);
    const std::vector<std::string> lines = Folded(side.notes, size, shown_width - 2 * size);
    // Whole points, so that a picture of so many dots an inch shows the page itself unchanged.
    const double margin =
        lines.empty() ? 0 : std::ceil(size * (1.3 * static_cast<double>(lines.size()) + 1));
    std::string matrix = "1 0 0 1 " + InPoints(-box.llx) + " " + InPoints(margin - box.lly);
    if (side.turn == 270)
      matrix = "0 1 -1 0 " + InPoints(height + box.lly) + " " + InPoints(margin - box.llx);
    if (side.turn == 90)
      matrix = "0 -1 1 0 " + InPoints(-box.lly) + " " + InPoints(margin + width + box.llx);
    std::string content = "q " + matrix + " cm /Page Do Q\n";
    if (!lines.empty()) content += Margin(lines, size, shown_width, margin);
    QPDFObjectHandle forms = QPDFObjectHandle::newDictionary();
    forms.replaceKey("/Page", form);
    AddPage(shown_width, shown_height + margin, content, forms);
  }

  static std::string Margin(const std::vector<std::string>& lines, double size, double width,
                            double margin) {
    std::string content = "q 0.95 1 1 rg 0 0 " + InPoints(width) + " " + InPoints(margin) +
                          " re f 0.4 G 0 " + InPoints(margin) + " m " + InPoints(width) + " " +
                          InPoints(margin) + " l S BT 0 g /Text " + InPoints(size) + " Tf " +
                          InPoints(size * 1.3) + " TL " + InPoints(size) + " " + InPoints(margin) +
                          " Td\n";
    for (const std::string& line : lines) content += PdfText(line) + " '\n";
    return content + "ET Q\n";
  }

  /// A page that stands for a sheet of which nothing is drawn.
  void AddNamed(const SheetSide& side) {
    const double width = side.width;
    const double height = side.height;
    const double size = std::clamp(width / 45, 6.0, 30.0);
    std::string content = "0.95 1 1 rg 0 0 " + InPoints(width) + " " + InPoints(height) +
                          " re f 0.4 G [6 4] 0 d 12 12 " + InPoints(width - 24) + " " +
                          InPoints(height - 24) + " re S BT 0.4 g /Text " + InPoints(size) +
                          " Tf " + InPoints(size * 1.3) + " TL " + InPoints(36) + " " +
                          InPoints(height / 2) + " Td\n";
    for (const std::string& line : Folded({side.text}, size, width - 72))
      content += PdfText(line) + " '\n";
    AddPage(width, height, content + "ET\n", QPDFObjectHandle::newDictionary());
  }

  void AddPage(double width, double height, const std::string& content,
               const QPDFObjectHandle& forms) {
    QPDFObjectHandle page = QPDFObjectHandle::parse("<< /Type /Page >>");
    page.replaceKey("/MediaBox", QPDFObjectHandle::newFromRectangle(
                                     QPDFObjectHandle::Rectangle(0, 0, width, height)));
    page.replaceKey("/Contents", QPDFObjectHandle::newStream(&pdf_, content));
    QPDFObjectHandle fonts = QPDFObjectHandle::newDictionary();
    fonts.replaceKey("/Text", Helvetica());
    QPDFObjectHandle resources = QPDFObjectHandle::newDictionary();
    resources.replaceKey("/Font", fonts);
    resources.replaceKey("/XObject", forms);
    page.replaceKey("/Resources", resources);
    QPDFPageDocumentHelper(pdf_).addPage(pdf_.makeIndirectObject(page), false);
  }

  struct Input {
    std::unique_ptr<QPDF> pdf;
    std::vector<QPDFPageObjectHelper> pages;
  };
  std::map<std::string, Input> inputs_;  // must outlive what was copied from them
  QPDF pdf_;
};

}  // namespace

std::size_t CountPdfPages(const std::string& file) {
  try {
    QPDF pdf;
    pdf.setSuppressWarnings(true);
    pdf.processFile(file.c_str());
    return pdf.getAllPages().size();
  } catch (const std::exception&) {
    return 0;
  }
}

Failure WriteSheetPdf(const std::vector<SheetSide>& sides, std::size_t first, std::size_t last,
                      const std::string& output) {
  try {
    Sheets sheets;
    for (std::size_t i = first; i < last; ++i) sheets.Add(sides[i]);
    sheets.Write(output);
    return "";
  } catch (const std::exception& error) {
    return error.what();
  }
}

}  // namespace zarvo::tool
