#include "mainwindow/main_form.h"

void MainForm::Command1_Click() {}

void MainForm::Command2_Click() {}

void MainForm::Command3_Click() {}

void MainForm::Command4_Click() {}
