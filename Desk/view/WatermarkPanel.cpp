// SPDX-License-Identifier: Apache-2.0
// Watermarks: one of those that are stored, and making new ones.
#include <QColorDialog>
#include <QFileDialog>
#include <QProcess>
#include <QPushButton>

#include "Desk/model/Renderer.h"
#include "Desk/view/Panels.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"
#include "Source/WatermarkSupport.h"

namespace zarvo::desk {
namespace {

class WatermarkPanel : public Panel {
 public:
  explicit WatermarkPanel(const PanelContext& context)
      : Panel(context.document), context_(context) {
    Group(tr("Watermark"));
    marks_ = new QComboBox(this);
    marks_->setObjectName("Watermark");
    connect(marks_, &QComboBox::activated, this, [this](int index) {
      const QString name = marks_->itemData(index).toString();
      document_->Change(tr("Watermark").toStdString(), [&](Dictionary* ticket) {
        if (!name.isEmpty()) {
          ticket->insert_or_assign(key::kWatermark, Value(name.toStdString()));
          return;
        }
        for (const char* each :
             {key::kWatermark, key::kWatermarkPlace, key::kWatermarkFirstPageOnly})
          ticket->erase(each);
      });
    });
    Row(tr("Watermark"), marks_);
    place_ = Codes("com.zarvo.print.watermark.Option", tr("Where"));
    first_ = Switch("com.zarvo.print.watermark.FirstPageOnly", tr("On the first page only"));
    Group(tr("Make or change a watermark"));
    text_ = new QLineEdit(this);
    text_->setObjectName("new-mark");
    Row(tr("Text"), text_);
    size_ = Spin("new-mark-size", tr("Size"), 6, 400, 120, tr(" points"));
    angle_ = Spin("new-mark-angle", tr("Angle"), -180, 180, 45, "\u00B0");
    color_ = new QPushButton("#c0c0c0", this);
    color_->setObjectName("new-mark-color");
    connect(color_, &QPushButton::clicked, this, [this] {
      const QColor color = QColorDialog::getColor(QColor(color_->text()), this);
      if (color.isValid()) color_->setText(color.name());
    });
    Row(tr("Colour"), color_);
    add_ = new QPushButton(tr("Store this text"), this);
    add_->setObjectName("store-mark");
    add_->setEnabled(false);
    connect(text_, &QLineEdit::textChanged, add_,
            [this](const QString& text) { add_->setEnabled(!text.trimmed().isEmpty()); });
    connect(add_, &QPushButton::clicked, this, [this] {
      Run({"watermark", "add-text", "--size=" + QString::number(size_->value()),
           "--angle=" + QString::number(angle_->value()), "--color=" + color_->text(), "--",
           text_->text().trimmed()},
          text_->text().trimmed());
    });
    Row(add_);
    auto* const image = new QPushButton(tr("Store a picture\u2026"), this);
    image->setObjectName("store-picture");
    connect(image, &QPushButton::clicked, this, [this] {
      const QString file = QFileDialog::getOpenFileName(this, tr("Picture for a watermark"));
      if (!file.isEmpty()) Run({"watermark", "add-image", "--", file}, QFileInfo(file).fileName());
    });
    Row(image);
    OnRefresh([this] { FillMarks(); });
  }

 private:
  QSpinBox* Spin(const char* name, const QString& label, int least, int most, int value,
                 const QString& suffix) {
    auto* const box = new QSpinBox(this);
    box->setObjectName(name);
    box->setRange(least, most);
    box->setValue(value);
    box->setSuffix(suffix);
    Row(label, box);
    return box;
  }

  void FillMarks() {
    const QString now = QString::fromStdString(document_->TextAt(key::kWatermark));
    Array names;
    loadWatermarkList(kWatermarkCollection, nullptr, &names);
    marks_->clear();
    marks_->addItem(tr("None"), QString());
    for (const Value& each : names) {
      WatermarkData mark{};
      const std::string* name = each.AsString();
      // The list begins with words for "none" that stand for no watermark.
      if (name == nullptr || loadWatermarkData(kWatermarkCollection, name, &mark) == 0) continue;
      marks_->addItem(QString::fromStdString(*name), QString::fromStdString(*name));
    }
    int index = marks_->findData(now);
    if (index < 0) {
      marks_->addItem(tr("%1 (not stored here)").arg(now), now);
      index = marks_->count() - 1;
    }
    marks_->setCurrentIndex(index);
    const bool any = !now.isEmpty();
    place_->setEnabled(any);
    first_->setEnabled(any);
    const QString why = any ? QString() : tr("Choose a watermark first.");
    place_->setToolTip(why);
    first_->setToolTip(why);
  }

  /// The tool itself stores it, so that it is checked and kept as everywhere.
  void Run(const QStringList& arguments, const QString& name) {
    auto* const tool = new ChildProgram(this);
    tool->setProcessChannelMode(QProcess::MergedChannels);
    connect(tool, &QProcess::errorOccurred, this, [=, this] {
      context_.tell(tool->errorString());
      tool->deleteLater();
    });
    connect(tool, &QProcess::finished, this, [=, this](int status) {
      const QString said = QString::fromUtf8(tool->readAll()).trimmed();
      tool->deleteLater();
      if (status != 0) return context_.tell(said);
      document_->Set(key::kWatermark, Value(name.toStdString()), tr("Watermark").toStdString());
      Refresh();
    });
    tool->start(ProgramPath("zarvo"), arguments);
    tool->closeWriteChannel();
  }

  PanelContext context_;
  QComboBox* marks_;
  QComboBox* place_;
  QCheckBox* first_;
  QLineEdit* text_;
  QSpinBox* size_;
  QSpinBox* angle_;
  QPushButton* color_;
  QPushButton* add_;
};

}  // namespace

Panel* MakeWatermarkPanel(const PanelContext& context) { return new WatermarkPanel(context); }

}  // namespace zarvo::desk
