// SPDX-License-Identifier: Apache-2.0
// Watermarks: one of those that are stored, changing it, and making new ones.
#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QProcess>
#include <QPushButton>

#include "Desk/model/Renderer.h"
#include "Desk/view/Panels.h"
#include "Source/CFAdditions.h"
#include "Source/Preferences.h"
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
    marks_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
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
    size_ = Spin("new-mark-size", tr("Size of the text"), 6, 2000, 120, tr(" points"));
    angle_ = Spin("new-mark-angle", tr("Angle"), -360, 360, 45, "\u00B0");
    color_ = new QPushButton(this);
    color_->setObjectName("new-mark-color");
    connect(color_, &QPushButton::clicked, this, [this] {
      const QColor color = QColorDialog::getColor(QColor(color_->text()), this);
      if (color.isValid()) SetColor(color);
    });
    Row(tr("Colour"), color_);
    SetColor(QColor(0xc0, 0xc0, 0xc0));
    scale_ = Spin("mark-scale", tr("Size of the picture"), 1, 10000, 100, " %");
    change_ = Button("change-mark", tr("Keep the changes of this watermark"), [this] { Change(); });
    add_ = Button("store-mark", tr("Store this text as a new one"), [this] { StoreText(""); });
    connect(text_, &QLineEdit::textChanged, this, [this] { Judge(); });
    Button("store-picture", tr("Store a picture\u2026"), [this] {
      const QString file = QFileDialog::getOpenFileName(this, tr("Picture for a watermark"));
      if (!file.isEmpty()) Run({"watermark", "add-image", "--", file}, QFileInfo(file).fileName());
    });
    FillMaking({}, true);
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

  void SetColor(const QColor& color) {
    color_->setText(color.name());
    QPixmap sample(16, 16);
    sample.fill(color);
    color_->setIcon(sample);
  }

  void Judge() {
    const bool any = !text_->text().trimmed().isEmpty();
    Allow(add_, any, tr("Type the text first."));
    Allow(change_, !chosen_.isEmpty() && (is_image_ || any),
          chosen_.isEmpty() ? tr("Choose a watermark first.") : tr("Type the text first."));
  }

  /// Shows how the chosen watermark is made. What is half changed stays while it is the same one.
  void FillMaking(const QString& name, bool anew) {
    if (name == chosen_ && !anew) return;
    const std::string stored = name.toStdString();
    WatermarkData mark{};
    const bool known =
        !name.isEmpty() && loadWatermarkData(kWatermarkCollection, &stored, &mark) == 1;
    chosen_ = known ? name : QString();
    is_image_ = known && mark.textString[0] == '\0';
    file_ = QString::fromUtf8(mark.filePath);
    font_ = QString::fromUtf8(mark.fontName);
    // A text that has a name of its own keeps it.
    label_ = QString::fromUtf8(mark.filename);
    if (known && is_image_) scale_->setValue(mark.scale);
    if (known && !is_image_) {
      text_->setText(QString::fromUtf8(mark.textString));
      size_->setValue(mark.fontSize);
      angle_->setValue(mark.angle);
      SetColor(QColor::fromRgbF(mark.fontColorRed, mark.fontColorGreen, mark.fontColorBlue));
    }
    for (QWidget* field : std::initializer_list<QWidget*>{text_, size_, angle_, color_})
      ShowOnly(field, !is_image_);
    add_->setVisible(!is_image_);
    ShowOnly(scale_, is_image_);
    Judge();
  }

  void StoreText(const QString& name) {
    const QString text = text_->text().trimmed();
    QStringList arguments = {"watermark", "add-text", "--size=" + QString::number(size_->value()),
                             "--angle=" + QString::number(angle_->value()),
                             "--color=" + color_->text()};
    if (!name.isEmpty() && !font_.isEmpty()) arguments << "--font=" + font_;
    if (!name.isEmpty() && (name != text || !label_.isEmpty())) arguments << "--name=" + name;
    Run(arguments << "--" << text, name.isEmpty() ? text : name);
  }

  void Change() {
    if (!is_image_) return StoreText(chosen_);
    Run({"watermark", "add-image", "--scale=" + QString::number(scale_->value()),
         "--name=" + chosen_, "--", file_},
        chosen_);
  }

  void FillMarks() {
    const QString now = QString::fromStdString(document_->TextAt(key::kWatermark));
    Array names;
    loadWatermarkList(kWatermarkCollection, nullptr, &names);
    TellDamage(names.empty());
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
    for (QWidget* each : {static_cast<QWidget*>(place_), static_cast<QWidget*>(first_)})
      Allow(each, any, tr("Choose a watermark first."));
    FillMaking(now, false);
  }

  /// A store that is there and gives nothing is told of once.
  void TellDamage(bool nothing) {
    const std::string path = CopyPreferenceFileURL(kWatermarkCollection).value_or("");
    const bool damaged = nothing && QFileInfo::exists(QString::fromStdString(path));
    if (damaged && !damaged_)
      context_.tell(tr("%1 cannot be read, or is damaged. \"zarvo doctor\" tells more.")
                        .arg(QString::fromStdString(path)));
    damaged_ = damaged;
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
      FillMaking(name, true);
      Refresh();
      context_.redraw();
    });
    tool->start(ProgramPath("zarvo"), arguments);
    tool->closeWriteChannel();
  }

  PanelContext context_;
  bool damaged_ = false;  // the store
  QComboBox* marks_;
  QComboBox* place_;
  QCheckBox* first_;
  QLineEdit* text_;
  QSpinBox* size_;
  QSpinBox* angle_;
  QPushButton* color_;
  QSpinBox* scale_;
  QPushButton* change_;
  QPushButton* add_;
  QString chosen_;  ///< the watermark that the fields show, if it is stored
  QString label_;
  QString font_;
  QString file_;
  bool is_image_ = false;
};

}  // namespace

Panel* MakeWatermarkPanel(const PanelContext& context) { return new WatermarkPanel(context); }

}  // namespace zarvo::desk
