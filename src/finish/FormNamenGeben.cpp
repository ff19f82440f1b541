#include "finish/FormNamenGeben.h"

namespace bogenwerker {

FormNamenGeben::FormNamenGeben(FormsRuntime& runtime)
    : FormWith(runtime, "formNamenGeben", {.caption = "Persönliche Daten", .isDialog = true, .help = "daten"}) {}

// The starting texts are selected whole, so that typing replaces them.
void FormNamenGeben::Form_Load() {
  for (TextBox* box : {&txtName, &txtAlter, &txtAussehen}) box->setSelLength(static_cast<int>(box->text().size()));
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
