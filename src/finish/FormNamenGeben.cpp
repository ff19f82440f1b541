#include "finish/FormNamenGeben.h"

namespace bogenwerker {

FormNamenGeben::FormNamenGeben(FormsRuntime& runtime)
    : FormWith(runtime, "formNamenGeben", {.caption = "Persönliche Daten", .isDialog = true}) {}

// The starting texts are selected whole, so that typing replaces them.
void FormNamenGeben::Form_Load() {
  txtName.setSelLength(19);
  txtAlter.setSelLength(20);
  txtAussehen.setSelLength(23);
}

void FormNamenGeben::cmbGeschlecht_Click() { geschlecht = cmbGeschlecht.text(); }

void FormNamenGeben::cmdOkay_Click() {
  Namen = txtName.text();
  alter = txtAlter.text();
  aussehen = txtAussehen.text();
  setVisible(false);
  showFinalValues_();
  unload();
}

}  // namespace bogenwerker
