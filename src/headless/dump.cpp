#include "headless/dump.h"

#include <nlohmann/json.hpp>

#include "forms/controls.h"

namespace bogenwerker {
namespace {

using nlohmann::ordered_json;

class ControlDump final : public ControlVisitor {
 public:
  explicit ControlDump(Control& control) { control.accept(*this); }
  ordered_json json;

 private:
  void visit(Frame& frame) override {
    begin(frame, "Frame");
    json["caption"] = frame.caption();
  }
  void visit(Label& label) override {
    begin(label, "Label");
    json["caption"] = label.caption();
    json["bold"] = label.isBold();
    json["size"] = label.size();
  }
  void visit(CommandButton& button) override {
    begin(button, "CommandButton");
    json["caption"] = button.caption();
  }
  void visit(OptionButton& option) override {
    begin(option, "OptionButton");
    json["caption"] = option.caption();
    json["value"] = option.value();
  }
  void visit(TextBox& box) override {
    begin(box, "TextBox");
    json["text"] = box.text();
    json["selLength"] = box.selLength();
  }
  void visit(ComboBox& box) override {
    begin(box, "ComboBox");
    json["text"] = box.text();
    json["sorted"] = box.isSorted();
    json["entries"] = box.entries();
  }
  void visit(ListBox& box) override {
    begin(box, "ListBox");
    json["text"] = box.text();
    json["sorted"] = false;
    json["lines"] = box.lines();
  }
  void visit(PictureBox& box) override { begin(box, "PictureBox"); }
  void visit(Line& line) override { identify(line, "Line"); }

  void identify(Control& control, std::string_view kind) {
    json["name"] = control.name();
    json["kind"] = kind;
    json["in"] = control.container().name();
    json["tab"] = nullptr;
    if (control.tab()) json["tab"] = *control.tab();
  }
  void begin(Control& control, std::string_view kind) {
    identify(control, kind);
    json["enabled"] = control.isEnabled();
  }
};

}  // namespace

std::string dumpOf(Wizard& wizard) {
  ordered_json forms = ordered_json::array();
  for (const Form* form : wizard.formsInOrder()) {
    if (!form->isLoaded()) continue;
    ordered_json controls = ordered_json::array();
    for (Control* control : form->controls()) controls.push_back(ControlDump(*control).json);
    forms.push_back({{"name", form->name()},
                     {"caption", form->caption()},
                     {"visible", form->isVisible()},
                     {"controls", std::move(controls)}});
  }
  return forms.dump(-1, ' ', false, ordered_json::error_handler_t::replace);
}

}  // namespace bogenwerker
