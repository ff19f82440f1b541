// A player's hands on real windows: the gestures of a script, by mouse or by keyboard alone.
#pragma once

#include <QMessageBox>
#include <QWidget>
#include <functional>
#include <string>
#include <string_view>

#include "desktop/desktop.h"
#include "world.h"

namespace bogenwerker {

// The look that all tests share. With points above 0 the system's font is taken to be of that size.
Look& look(double systemPoints = 0);

// A world on the screen.
class Screen {
 public:
  // Plays the script in the model alone until that form is the visible one, and only then shows it.
  explicit Screen(std::string_view form = "formPrioritäten", const std::string& script = scriptOf("zauberin"));
  ~Screen();

  [[nodiscard]] FormWindow& window() const;
  [[nodiscard]] Form& form() { return *world.wizard.runtime().visibleForm(); }
  [[nodiscard]] QWidget& widget(std::string_view control) const;

  static std::string scriptOf(const std::string& example);

  World world;
  bool over = false;
  Desktop desktop{look(), [this] { over = true; }};
};

class Hands {
 public:
  virtual ~Hands() = default;
  // Every line of the script, on whatever window is visible by then.
  void play(const Screen& screen, const std::string& script);

  virtual void click(QWidget& control) = 0;
  virtual void type(QWidget& field, const QString& text) = 0;
  virtual void pick(QWidget& box, const QString& entry) = 0;
  virtual void select(QWidget& list, int line) = 0;
};

class MouseHands final : public Hands {
 public:
  void click(QWidget& control) override;
  void type(QWidget& field, const QString& text) override;
  void pick(QWidget& box, const QString& entry) override;
  void select(QWidget& list, int line) override;
};

class KeyboardHands final : public Hands {
 public:
  void click(QWidget& control) override;
  void type(QWidget& field, const QString& text) override;
  void pick(QWidget& box, const QString& entry) override;
  void select(QWidget& list, int line) override;

 private:
  static void tabTo(QWidget& control);
};

// To whatever has the keyboard: an open popup, else the focus.
void key(int key, Qt::KeyboardModifiers modifiers = {});
void typeKeys(const QString& text);

// Answers the next message box from within.
void whenBoxOpens(std::function<void(QMessageBox&)> answer);

}  // namespace bogenwerker
