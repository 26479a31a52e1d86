// SPDX-License-Identifier: Apache-2.0
// The pages of settings, in the groups that people look for them in.
#pragma once

#include <QIcon>
#include <functional>
#include <utility>
#include <vector>

#include "Desk/view/Panel.h"

namespace zarvo::desk {

/// What the panels know of the rest of the window.
struct PanelContext {
  TicketDocument* document;
  /// The pages that are selected among the sheets.
  std::function<std::vector<std::uint32_t>()> selected_pages;
  std::function<void(const QString&)> tell;
  /// What the queue does by itself, as a ticket.
  const Dictionary* defaults;
  /// The options in them that the user keeps for the queue.
  const Dictionary* saved;
  /// What is drawn has changed where the ticket does not show it.
  std::function<void()> redraw;
};

struct PanelEntry {
  const char* name;  ///< of the object
  QString title;
  Panel* panel;
};

/// All of them, without parents.
std::vector<PanelEntry> MakePanels(const PanelContext& context);

Panel* MakePagesPanel(const PanelContext& context);
Panel* MakeFinishingPanel(const PanelContext& context);
Panel* MakeFaxPanel(const PanelContext& context);
Panel* MakeHousePanel(const PanelContext& context);
Panel* MakeWatermarkPanel(const PanelContext& context);
Panel* MakeAllKeysPanel(const PanelContext& context);
Panel* MakeChangesPanel(const PanelContext& context);

}  // namespace zarvo::desk
