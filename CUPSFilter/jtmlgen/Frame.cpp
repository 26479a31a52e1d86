// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/jtmlgen/Frame.h"

#include "CUPSFilter/jtmlgen/Emit.h"

namespace zarvo {

JtmlGenError WriteJtmlHeader(const JtmlSink* sink, int dtdFileVer) {
  std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  if (dtdFileVer >= 0 && dtdFileVer <= 5) {
    text += "<!DOCTYPE jtml SYSTEM \"jtml-v0202" + std::to_string(dtdFileVer) + ".dtd\">\n";
  }
  text += "<jtml version=\"1.0\" xml:lang=\"en-US\" cpss-version=\"2.01\">\n";
  Send(sink, text);
  return JTML_SUCCESS;
}

JtmlGenError WriteJtmlOpAttrib(const JtmlSink* sink, int bJobRecipient, const char* szJobName,
                               const char* szUserName) {
  const char* user = TextOrEmpty(szUserName);
  if (bJobRecipient == 1) {
    Send(sink, Element(2, "job-recipient-name", Syntax::kName, user));
    return JTML_SUCCESS;
  }
  Send(sink, "\t<jtml-operation-attributes>\n" +
                 Element(2, "job-name", Syntax::kName, TextOrEmpty(szJobName)) +
                 Element(2, "requesting-user-name", Syntax::kName, user) +
                 Element(2, "document-format", Syntax::kMimeMediaType, "application/postscript") +
                 "\t</jtml-operation-attributes>\n");
  return JTML_SUCCESS;
}

JtmlGenError WriteJtmlJobAttribStart(const JtmlSink* sink) {
  Send(sink, "\t<job-template-attributes>\n");
  return JTML_SUCCESS;
}

JtmlGenError WriteJtmlJobAttribEnd(const JtmlSink* sink) {
  Send(sink, "\t</job-template-attributes>\n");
  return JTML_SUCCESS;
}

JtmlGenError WriteJtmlTrailer(const JtmlSink* sink) {
  Send(sink, "</jtml>");
  return JTML_SUCCESS;
}

}  // namespace zarvo
