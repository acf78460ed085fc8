// The fonts of the QML views, by what is written in them: one place for every size and weight.
// A singleton of the theme, which tells it the family and the sizes; QML reads it and never sets it. Texts
// that share a font share what Qt has loaded of its typeface.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QFont>
#include <QJSEngine>
#include <QObject>
#include <QQmlEngine>

namespace brimle {

class Fonts : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  // In the typeface of the settings.
  Q_PROPERTY(QFont title MEMBER title_ NOTIFY changed)
  Q_PROPERTY(QFont task MEMBER task_ NOTIFY changed)
  Q_PROPERTY(QFont doneTask MEMBER doneTask_ NOTIFY changed)
  Q_PROPERTY(QFont nothing MEMBER nothing_ NOTIFY changed)
  Q_PROPERTY(QFont note MEMBER note_ NOTIFY changed)
  Q_PROPERTY(QFont day MEMBER day_ NOTIFY changed)
  Q_PROPERTY(QFont small MEMBER small_ NOTIFY changed)
  Q_PROPERTY(QFont boundary MEMBER boundary_ NOTIFY changed)
  Q_PROPERTY(QFont badge MEMBER badge_ NOTIFY changed)
  Q_PROPERTY(QFont tooltip MEMBER tooltip_ NOTIFY changed)
  // In the desktop's own.
  Q_PROPERTY(QFont section MEMBER section_ NOTIFY changed)
  Q_PROPERTY(QFont key MEMBER key_ NOTIFY changed)
  Q_PROPERTY(QFont description MEMBER description_ NOTIFY changed)

 public:
  struct Basis {
    QString family;        ///< of the settings
    QString systemFamily;  ///< of the desktop
    double size = 0;       ///< of a task's text, in points of the layout
    double scale = 1;      ///< what all sizes are multiplied by

    bool operator==(const Basis&) const = default;
  };

  /// The engine would make instances of its own of a class that can be made from nothing.
  explicit Fonts(const Basis& basis);
  ~Fonts() override;

  /// The instance that QML gets; the theme keeps it.
  static Fonts* create(QQmlEngine*, QJSEngine*);

  void setBasis(const Basis& basis);
  /// Has the typefaces of the first texts found and read, for which they would otherwise wait.
  void prepare() const;

 signals:
  void changed();

 private:
  struct Style;
  static const Style kStyles[];

  Basis basis_;
  QFont title_, task_, doneTask_, nothing_, note_, day_, small_, boundary_, badge_, tooltip_;
  QFont section_, key_, description_;
};

}  // namespace brimle
