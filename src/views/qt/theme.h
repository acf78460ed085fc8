// The one theme of the QML views: colours for the appearance in force, sizes and motion; it keeps their
// fonts. A singleton made by the program before the window; QML reads it and never sets it.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QJSEngine>
#include <QObject>
#include <QPalette>
#include <QQmlEngine>
#include <QVariantList>
#include <string>

#include "base/signal.h"
#include "prefs/palette.h"
#include "prefs/ui_state.h"
#include "views/qt/fonts.h"
#include "views/window_measures.h"

namespace brimle {

class Theme : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(QColor paper READ paper NOTIFY changed)
  Q_PROPERTY(QColor pencilRed READ pencilRed NOTIFY changed)
  Q_PROPERTY(QColor highlight READ highlight NOTIFY changed)
  Q_PROPERTY(QColor selection READ selection NOTIFY changed)
  Q_PROPERTY(QColor primary READ primary NOTIFY changed)
  Q_PROPERTY(QColor secondary READ secondary NOTIFY changed)
  Q_PROPERTY(QColor tertiary READ tertiary NOTIFY changed)
  Q_PROPERTY(QColor placeholder READ placeholder NOTIFY changed)
  Q_PROPERTY(double baseSize READ baseSize NOTIFY changed)
  Q_PROPERTY(double listInset READ listInset NOTIFY changed)
  Q_PROPERTY(double foldedHeight READ foldedHeight CONSTANT)
  Q_PROPERTY(bool reduceMotion READ reduceMotion NOTIFY changed)
  Q_PROPERTY(bool focusShown READ focusShown NOTIFY focusShownChanged)
  Q_PROPERTY(QVariantList listSpring READ listSpring CONSTANT)
  Q_PROPERTY(int listSpringDuration READ listSpringDuration CONSTANT)
  Q_PROPERTY(QVariantList tickSpring READ tickSpring CONSTANT)
  Q_PROPERTY(int tickSpringDuration READ tickSpringDuration CONSTANT)

 public:
  /// `ui` must outlive the theme.
  explicit Theme(UIState& ui);
  ~Theme() override;

  /// The instance that QML gets; the program keeps it.
  static Theme* create(QQmlEngine*, QJSEngine*);

  void setAppearance(Appearance appearance);
  void setHighContrast(bool high);
  void setReduceMotion(bool reduce);
  void setFocusShown(bool shown);
  /// How much larger than usual the desktop wants text; 1 is the usual.
  void setTextScale(double scale);

  QColor paper() const;
  QColor pencilRed() const;
  QColor highlight() const;
  QColor selection() const;
  QColor primary() const;
  QColor secondary() const;
  QColor tertiary() const;
  QColor placeholder() const;
  double baseSize() const { return ui_.baseSize(); }
  /// What font sizes are multiplied by.
  double textScale() const { return textScale_; }
  double listInset() const { return ui_.listInset(); }
  /// Of the folded window, which is its header.
  double foldedHeight() const { return kFoldedHeight; }
  bool reduceMotion() const { return reduceMotion_; }
  /// Whether controls show that they have the keyboard: from the key that moves it to the next click.
  bool focusShown() const { return focusShown_; }
  QVariantList listSpring() const;
  int listSpringDuration() const;
  QVariantList tickSpring() const;
  int tickSpringDuration() const;
  const Fonts& fonts() const { return fonts_; }

  /// The same colours for menus and dialogs.
  QPalette palette() const;

  /// A colour at a share of its opacity.
  Q_INVOKABLE static QColor faded(const QColor& color, double opacity);

 signals:
  void changed();
  /// The user pressed a key or a button, or turned to another window.
  void acted();
  /// Apart from the others: it comes with every click, and looks and sizes stay as they are.
  void focusShownChanged();

 private:
  /// The settings that the theme follows.
  struct Settings {
    std::string fontDesign, textSize, paperTone, margin;
    bool operator==(const Settings&) const = default;
  };

  Settings settings() const;
  void settingsTold();
  QString fontFamily() const;
  Fonts::Basis fontBasis() const;
  template <class Value>
  void assign(Value& member, Value value);

  UIState& ui_;
  double textScale_ = 1;
  Fonts fonts_;
  Settings seen_;
  Subscription following_;
  Appearance appearance_ = Appearance::light;
  bool highContrast_ = false;
  bool reduceMotion_ = false;
  bool focusShown_ = false;
};

}  // namespace brimle
