#include "toolkit/control_view.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOption>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>
#include <cstdlib>
#include <limits>
#include <optional>
#include <type_traits>

#include "frame/session.h"
#include "toolkit/contrast.h"
#include "toolkit/grid_view.h"
#include "toolkit/help_browser.h"
#include "toolkit/number_edit.h"
#include "toolkit/picture_widget.h"
#include "toolkit/text.h"

namespace korvane {
namespace {

std::optional<Key> KeyOf(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return Key::Enter;
    case Qt::Key_F1: return Key::F1;
    default: return std::nullopt;
  }
}

/// Black or white, whichever stands out against the colour.
QColor Contrast(const QColor& back) { return qGray(back.rgb()) > 127 ? Qt::black : Qt::white; }

/// A view that knows its control and its widget by their own types.
template <class Model, class Shown>
class ViewOf : public ControlView {
 public:
  ViewOf(Model& model, Shown* shown, const Person& person)
      : ControlView(model, *shown, person), model_(model), shown_(*shown) {}

 protected:
  Model& model_;
  Shown& shown_;
};

// ---- Fields ----

class TextView final : public ViewOf<TextField, NumberEdit> {
 public:
  TextView(TextField& field, const Person& person, QWidget& parent)
      : ViewOf(field, new NumberEdit(&parent), person) {
    const bool number = !field.IsFreeText();
    shown_.setAlignment(number ? Qt::AlignRight | Qt::AlignVCenter
                               : Qt::AlignLeft | Qt::AlignVCenter);
    shown_.setMinimumWidth(shown_.fontMetrics().averageCharWidth() * (number ? 18 : 40));
    // What assistive programs set counts as typed too.
    connect(&shown_, &QLineEdit::textChanged, this, [this](const QString& text) {
      if (text != ToQt(model_.Text())) person_.Types(model_, FromQt(text));
    });
    // A right click for the Copy command leaves the focus where it is; see eventFilter for the
    // left.
    if (field.IsResult()) shown_.setFocusPolicy(Qt::NoFocus);
  }

 private:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (model_.IsResult() && event->type() == QEvent::MouseButtonPress &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
      person_.Focuses(model_);
    return ControlView::eventFilter(object, event);
  }

  void RefreshContent() override {
    const QString text = ToQt(model_.Text());
    if (shown_.text() != text) {
      shown_.setText(text);
      if (model_.IsLocked()) shown_.home(false);  // a long text is read from its beginning
    }
    shown_.setReadOnly(model_.IsLocked() || model_.IsResult());
    shown_.setAccessibleName(NameOf(model_, shown_));
    // A field that the focus has left in the meantime shows no selection.
    if (model_.TakeSelectAll() && model_.HasFocus()) shown_.selectAll();
  }
};

/// Of a text of several lines, which is only read.
class LinesView final : public ViewOf<TextField, QPlainTextEdit> {
 public:
  LinesView(TextField& field, const Person& person, QWidget& parent)
      : ViewOf(field, new QPlainTextEdit(&parent), person) {
    constexpr int columns = 50, rows = 8;  // at least
    shown_.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    shown_.setMinimumSize(shown_.fontMetrics().averageCharWidth() * columns,
                          shown_.fontMetrics().lineSpacing() * rows);
    shown_.setReadOnly(true);
    shown_.setTabChangesFocus(true);
    shown_.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  }

 private:
  void RefreshContent() override {
    if (text_ != model_.Text()) {
      text_ = model_.Text();
      shown_.setPlainText(ToQt(text_));
    }
    shown_.setAccessibleName(NameOf(model_, shown_));
  }

  std::string text_;
};

class ComboView final : public ViewOf<Combo, QComboBox> {
 public:
  ComboView(Combo& combo, const Person& person, QWidget& parent)
      : ViewOf(combo, new QComboBox(&parent), person) {
    shown_.setEditable(combo.IsEditable());
    shown_.setInsertPolicy(QComboBox::NoInsert);
    if (combo.HasFixedPitch()) shown_.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    connect(&shown_, &QComboBox::activated, this,
            [this](int index) { person_.Selects(model_, index); });
    if (combo.IsEditable())
      connect(&shown_, &QComboBox::editTextChanged, this,
              [this](const QString& text) { person_.Edits(model_, FromQt(text)); });
  }

 private:
  void RefreshContent() override {
    const QSignalBlocker quiet(shown_);
    QStringList items;
    for (const std::string& item : model_.Items()) items << ToQt(item);
    if (items != items_) {
      shown_.clear();
      shown_.addItems(items);
      items_ = items;
    }
    shown_.setCurrentIndex(model_.Index());
    if (model_.IsEditable() && shown_.currentText() != ToQt(model_.Text()))
      shown_.setEditText(ToQt(model_.Text()));
    shown_.setAccessibleName(NameOf(model_, shown_));
  }

  QStringList items_;
};

class ListView final : public ViewOf<ListBox, QListWidget> {
 public:
  ListView(ListBox& list, const Person& person, QWidget& parent)
      : ViewOf(list, new QListWidget(&parent), person) {
    if (list.HasFixedPitch()) shown_.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    connect(&shown_, &QListWidget::currentRowChanged, this, [this](int row) {
      if (row >= 0 && row != model_.Index()) person_.Selects(model_, row);
    });
    connect(&shown_, &QListWidget::itemClicked, this,
            [this] { person_.Selects(model_, shown_.currentRow()); });
  }

 private:
  void RefreshContent() override {
    const QSignalBlocker quiet(shown_);
    QStringList items;
    for (const std::string& item : model_.Items()) items << ToQt(item);
    if (items != items_) {
      shown_.clear();
      shown_.addItems(items);
      items_ = items;
      if (model_.ShowsAll()) FitEntries();
    }
    if (shown_.currentRow() != model_.Index()) {
      shown_.setCurrentRow(model_.Index());
      // What the program chose is seen among its neighbours.
      shown_.scrollToItem(shown_.currentItem(), QAbstractItemView::PositionAtCenter);
    }
    shown_.setAccessibleName(NameOf(model_, shown_));
  }

  void FitEntries() {
    const int frames = 2 * shown_.frameWidth();
    shown_.setFixedHeight(shown_.sizeHintForRow(0) * shown_.count() + frames);
    shown_.setMinimumWidth(shown_.sizeHintForColumn(0) + frames);
  }

  QStringList items_;
};

// ---- Buttons ----

/// A button with a text, or a drawing in its place.
template <class Button>
class Faced : public Button {
 public:
  using Button::Button;

  void Tell(const FacedControl& control) {
    face_ = control.Face();
    const QString caption = ToQt(control.Caption());
    this->setText(HasFace() ? QString() : caption);
    this->setToolTip(HasFace() ? caption : QString());
    this->setAccessibleName(HasFace() ? caption : QString());
    this->updateGeometry();
    this->update();
  }

 protected:
  bool HasFace() const { return !face_.shapes.empty(); }
  QSize FaceSize() const { return SizeOf(face_, this->fontMetrics()).toSize(); }
  void PaintFace() {
    QPainter painter(this);
    Paint(painter, this->rect(), face_, this->palette());
  }

 private:
  Drawing face_;
};

class CommandButton final : public Faced<QPushButton> {
 public:
  using Faced::Faced;

  QSize sizeHint() const override {
    if (!HasFace()) return QPushButton::sizeHint();
    const int margin = style()->pixelMetric(QStyle::PM_ButtonMargin, nullptr, this);
    return FaceSize() + QSize(margin, margin);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPushButton::paintEvent(event);
    PaintFace();
  }
};

class CommandView final : public ViewOf<Command, CommandButton> {
 public:
  CommandView(Command& command, const Person& person, QWidget& parent)
      : ViewOf(command, new CommandButton(&parent), person) {
    shown_.setAutoDefault(false);
    connect(&shown_, &QPushButton::clicked, this, [this] { person_.Clicks(model_); });
  }

 private:
  void RefreshContent() override {
    shown_.Tell(model_);
    shown_.setDefault(model_.Owner().DefaultCommand() == &model_);
  }
};

/// A button whose mark the model alone sets: a click asks for it.
template <class Button>
class Marked : public Button {
 public:
  using Button::Button;

 protected:
  void nextCheckState() override {}
};

/// An option with a text, or nothing but a drawing, which can be clicked all over.
class OptionButton final : public Faced<Marked<QRadioButton>> {
 public:
  using Faced::Faced;

  QSize sizeHint() const override { return HasFace() ? FaceSize() : QRadioButton::sizeHint(); }

 protected:
  bool hitButton(const QPoint& point) const override {
    return HasFace() ? rect().contains(point) : QRadioButton::hitButton(point);
  }

  void paintEvent(QPaintEvent* event) override {
    if (!HasFace()) {
      QRadioButton::paintEvent(event);
      return;
    }
    PaintFace();
    if (!hasFocus()) return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
  }
};

/// Of an option or check box: a person clicks it, an assistive program may turn its mark over.
template <class Model, class Button>
class MarkView : public ViewOf<Model, Button> {
 public:
  MarkView(Model& model, Button* button, const Person& person)
      : ViewOf<Model, Button>(model, button, person) {
    this->connect(button, &Button::clicked, this, [this] { this->person_.Clicks(this->model_); });
    this->connect(button, &Button::toggled, this, [this](bool on) {
      if (on == this->model_.IsOn()) return;
      RefreshContent();
      this->person_.Clicks(this->model_);
    });
  }

 private:
  void RefreshContent() override {
    if constexpr (std::is_base_of_v<FacedControl, Model>)
      this->shown_.Tell(this->model_);
    else
      this->shown_.setText(ToQt(this->model_.Caption()));
    this->shown_.setChecked(this->model_.IsOn());
  }
};

class OptionView final : public MarkView<Option, OptionButton> {
 public:
  OptionView(Option& option, const Person& person, QWidget& parent)
      : MarkView(option, new OptionButton(&parent), person) {
    // Radio buttons of one parent exclude one another unless they are in a group.
    auto* alone = new QButtonGroup(&shown_);
    alone->setExclusive(false);
    alone->addButton(&shown_);
  }

 private:
  // The arrow keys walk the options of the group, as they do in exclusive buttons.
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      const int key = static_cast<QKeyEvent*>(event)->key();
      const bool on = key == Qt::Key_Down || key == Qt::Key_Right;
      const bool upright = key == Qt::Key_Down || key == Qt::Key_Up;
      if (upright && !model_.Face().shapes.empty()) {
        Climb(on ? 1 : -1);
        return true;
      }
      if (on || upright || key == Qt::Key_Left) {
        Walk(on ? 1 : -1);
        return true;
      }
    }
    return ControlView::eventFilter(object, event);
  }

  void Walk(int step) {
    const std::vector<Option*>& options = model_.Group().Options();
    const auto count = static_cast<int>(options.size());
    auto at =
        static_cast<int>(std::find(options.begin(), options.end(), &model_) - options.begin());
    for (int tried = 1; tried < count; ++tried) {
      at = (at + step + count) % count;
      Option& next = *options[static_cast<std::size_t>(at)];
      if (next.CanFocus()) {
        person_.Clicks(next);
        return;
      }
    }
  }

  /// To the next option below, or above for -1: pictures may stand in a chart.
  void Climb(int step) {
    const QPoint here = shown_.mapToGlobal(QPoint());
    Option* nearest = nullptr;
    int least = std::numeric_limits<int>::max();
    for (Option* option : model_.Group().Options()) {
      const auto* widget = shown_.window()->findChild<QWidget*>(ToQt(option->Name()));
      if (widget == nullptr || !option->CanFocus()) continue;
      const QPoint away = widget->mapToGlobal(QPoint()) - here;
      const int distance = step * away.y();
      if (distance <= 0 || distance >= least || 2 * std::abs(away.x()) > shown_.width()) continue;
      least = distance;
      nearest = option;
    }
    if (nearest != nullptr) person_.Clicks(*nearest);
  }
};

class CheckView final : public MarkView<CheckBox, QCheckBox> {
 public:
  CheckView(CheckBox& check, const Person& person, QWidget& parent)
      : MarkView(check, new Marked<QCheckBox>(&parent), person) {}
};

class SpinView final : public ViewOf<SpinButton, QWidget> {
 public:
  SpinView(SpinButton& spin, const Person& person, QWidget& parent)
      : ViewOf(spin, new QWidget(&parent), person) {
    auto* column = new QVBoxLayout(&shown_);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    for (const bool up : {true, false}) {
      auto* button = new QToolButton(&shown_);
      button->setArrowType(up ? Qt::UpArrow : Qt::DownArrow);
      button->setAutoRepeat(true);
      button->setFocusPolicy(Qt::NoFocus);
      button->setFixedHeight(shown_.fontMetrics().height() * 3 / 4);
      button->setAccessibleName(
          (up ? tr("Increase %1") : tr("Decrease %1")).arg(Plain(spin.Field().Caption())));
      connect(button, &QToolButton::clicked, this, [this, up] { person_.Spins(model_, up); });
      column->addWidget(button);
    }
  }

 private:
  void RefreshContent() override {}
};

class ScrollView final : public ViewOf<ScrollBar, QScrollBar> {
 public:
  ScrollView(ScrollBar& bar, const Person& person, QWidget& parent)
      : ViewOf(bar, new QScrollBar(Qt::Horizontal, &parent), person) {
    shown_.setRange(bar.Least(), bar.Most());
    shown_.setMinimumWidth(shown_.fontMetrics().averageCharWidth() * 48);
    shown_.setFocusPolicy(Qt::StrongFocus);
    connect(&shown_, &QScrollBar::valueChanged, this,
            [this](int value) { person_.Scrolls(model_, value); });
  }

 private:
  void RefreshContent() override {
    const QSignalBlocker quiet(shown_);
    shown_.setValue(model_.Value());
    shown_.setAccessibleName(NameOf(model_, shown_));
  }
};

// ---- What takes no focus ----

class LabelView final : public ViewOf<Label, QLabel> {
 public:
  LabelView(Label& label, const Person& person, QWidget& parent)
      : ViewOf(label, new QLabel(&parent), person) {
    shown_.setTextFormat(Qt::PlainText);
    if (label.Back() == Color::Window()) {  // shows a value, as a field does
      shown_.setFrameShape(QFrame::StyledPanel);
      shown_.setMargin(4);
    }
    if (label.onClick) shown_.setCursor(Qt::PointingHandCursor);
  }

 private:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::MouseButtonRelease && model_.onClick) {
      person_.Clicks(model_);
      return true;
    }
    return ControlView::eventFilter(object, event);
  }

  void RefreshContent() override {
    constexpr int longLine = 70;  // characters, beyond which a text is broken into lines
    shown_.setText(shown_.buddy() != nullptr ? ToQt(model_.Caption()) : Plain(model_.Caption()));
    shown_.setWordWrap(shown_.text().size() > longLine);
    if (shown_.wordWrap())
      shown_.setMinimumWidth(shown_.fontMetrics().averageCharWidth() * longLine);
    QFont font = shown_.font();
    if (model_.FontSize() > 0) font.setPointSize(model_.FontSize());
    font.setBold(model_.IsHeading());
    shown_.setFont(font);
  }
};

class PictureView final : public ViewOf<Picture, PictureWidget> {
 public:
  PictureView(Picture& picture, const Person& person, QWidget& parent)
      : ViewOf(picture, new PictureWidget(&parent), person) {
    if (picture.onClick) shown_.setCursor(Qt::PointingHandCursor);
    if (picture.FillsSpace()) shown_.FillSpace();
  }

 private:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::MouseButtonRelease && model_.onClick) {
      person_.Clicks(model_);
      return true;
    }
    if (event->type() == QEvent::ContextMenu && model_.onRightClick) {
      person_.RightClicks(model_);
      return true;
    }
    return ControlView::eventFilter(object, event);
  }

  void RefreshContent() override {
    shown_.Draw(model_.Shown());
    shown_.setAccessibleName(Plain(model_.Caption()));
    shown_.setAccessibleDescription(Plain(model_.Caption()));
  }
};

class FrameView final : public ViewOf<Frame, QGroupBox> {
 public:
  FrameView(Frame& frame, const Person& person, QWidget& parent)
      : ViewOf(frame, new QGroupBox(&parent), person) {}

 private:
  void RefreshContent() override { shown_.setTitle(ToQt(model_.Caption())); }
};

class PageBrowser final : public ViewOf<PageView, HelpBrowser> {
 public:
  PageBrowser(PageView& page, const Person& person, QWidget& parent)
      : ViewOf(page, new HelpBrowser(&parent), person) {
    shown_.setAccessibleName(tr("Help page"));
    connect(&shown_, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& link) { person_.Follows(model_, FromQt(shown_.AddressOf(link))); });
  }

 private:
  // Enter opens the link that has the focus, which is the widget's own matter.
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::KeyPress && KeyOf(*static_cast<QKeyEvent*>(event)) == Key::Enter)
      return false;
    return ControlView::eventFilter(object, event);
  }

  void RefreshContent() override {
    shown_.SetFolder(ToQt(model_.Folder()));
    if (!model_.TakeNavigation()) return;
    shown_.Show(ToQt(model_.Address()));
    person_.Arrives(model_);
  }
};

template <class View, class Model>
std::unique_ptr<ControlView> Make(Control& control, const Person& person, QWidget& parent) {
  return std::make_unique<View>(static_cast<Model&>(control), person, parent);
}

}  // namespace

QString NameOf(const CaptionedControl& control, const QWidget& widget) {
  const QString caption = Plain(control.Caption());
  if (control.CaptionBeside().GetKind() == Control::Kind::Frame) return caption;
  for (const QWidget* outer = widget.parentWidget(); outer != nullptr;
       outer = outer->parentWidget())
    if (const auto* box = qobject_cast<const QGroupBox*>(outer); box && !box->title().isEmpty())
      return box->title() + ' ' + caption;
  return caption;
}

// ---- ControlView ----

ControlView::ControlView(Control& control, QWidget& widget, const Person& person)
    : person_(person), control_(control), widget_(widget) {
  widget.setObjectName(ToQt(control.Name()));
  widget.installEventFilter(this);
}

void ControlView::Detach() {
  detached_ = true;
  widget_.removeEventFilter(this);
  widget_.disconnect(this);
}

void ControlView::Refresh() {
  widget_.setVisible(control_.IsVisible());
  widget_.setEnabled(control_.IsEnabled());
  RefreshColors();
  RefreshContent();
}

bool ControlView::eventFilter(QObject* object, QEvent* event) {
  if (detached_) return false;
  auto* focusable = dynamic_cast<FocusControl*>(&control_);
  switch (event->type()) {
    case QEvent::FocusIn:
      if (focusable != nullptr && !focusable->HasFocus()) person_.Focuses(*focusable);
      break;
    case QEvent::KeyPress:
      if (const auto key = KeyOf(*static_cast<QKeyEvent*>(event)); focusable != nullptr && key) {
        person_.Presses(control_.Owner(), *key);
        return true;
      }
      break;
    default: break;
  }
  return QObject::eventFilter(object, event);
}

void ControlView::RefreshColors() {
  const bool field = control_.GetKind() == Control::Kind::Text ||
                     control_.GetKind() == Control::Kind::Combo ||
                     control_.GetKind() == Control::Kind::List;
  const Color usual = field ? Color::Window() : Color::ButtonFace();
  const auto* text = dynamic_cast<const TextField*>(&control_);
  const bool result = text != nullptr && text->IsShaded();
  if (control_.Back() == usual && control_.Fore() == Color::Text() && !result) {
    widget_.setPalette(QPalette());
    widget_.setAutoFillBackground(false);
    return;
  }
  QPalette palette;
  const auto ground = field ? QPalette::Base : QPalette::Window;
  const auto letters = field ? QPalette::Text : QPalette::WindowText;
  if (control_.Back().role == Color::Role::Fixed) {
    palette.setColor(ground, QColor::fromRgb(control_.Back().rgb));
    palette.setColor(letters, Contrast(palette.color(ground)));
  } else if (control_.Back().role == Color::Role::ButtonFace || result) {
    palette.setColor(ground, QPalette().color(QPalette::Window));
    // A field that a choice has made a result of is still to be read.
    if (text != nullptr)
      palette.setColor(QPalette::Disabled, letters, QPalette().color(QPalette::Active, letters));
  } else {
    palette.setColor(ground, QPalette().color(QPalette::Base));
  }
  if (control_.Fore().role == Color::Role::Fixed)
    palette.setColor(letters,
                     Readable(QColor::fromRgb(control_.Fore().rgb), palette.color(ground)));
  widget_.setPalette(palette);
  widget_.setAutoFillBackground(control_.Back() != usual);
}

std::unique_ptr<ControlView> MakeControlView(Control& control, const Person& person,
                                             QWidget& parent) {
  switch (control.GetKind()) {
    using enum Control::Kind;
    case Text:
      if (static_cast<TextField&>(control).HasLines())
        return Make<LinesView, TextField>(control, person, parent);
      return Make<TextView, TextField>(control, person, parent);
    case Combo: return Make<ComboView, korvane::Combo>(control, person, parent);
    case List: return Make<ListView, ListBox>(control, person, parent);
    case Option: return Make<OptionView, korvane::Option>(control, person, parent);
    case Check: return Make<CheckView, CheckBox>(control, person, parent);
    case Command: return Make<CommandView, korvane::Command>(control, person, parent);
    case Label: return Make<LabelView, korvane::Label>(control, person, parent);
    case Picture: return Make<PictureView, korvane::Picture>(control, person, parent);
    case Frame: return Make<FrameView, korvane::Frame>(control, person, parent);
    case Spin: return Make<SpinView, SpinButton>(control, person, parent);
    case Scroll: return Make<ScrollView, ScrollBar>(control, person, parent);
    case Grid: return MakeGridView(static_cast<korvane::Grid&>(control), person, parent);
    case Page: return Make<PageBrowser, PageView>(control, person, parent);
    case Timer: break;
  }
  return nullptr;
}

}  // namespace korvane
