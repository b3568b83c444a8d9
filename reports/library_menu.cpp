// The commands under "Print Library", and "Setup Printer".
#include "reports/abridged_list.h"
#include "reports/full_list.h"
#include "reports/query_list.h"

void frmPage1::mnuPrint2_Click() { Desk.PrinterDialog(); }
void frmPage1::mnuAll_Click() { reports::FullList(*this).Run(); }
void frmPage1::mnuShort_Click() { reports::AbridgedReport(*this, reports::AllTitlesList).Run(); }
void frmPage1::mnuDVD_Click() { reports::AbridgedReport(*this, reports::DvdList).Run(); }
void frmPage1::mnuLaser_Click() { reports::AbridgedReport(*this, reports::LaserList).Run(); }
void frmPage1::mnuVHS_Click() { reports::AbridgedReport(*this, reports::VhsList).Run(); }
void frmPage1::mnuDirector_Click() { reports::QueryReport(*this, reports::DirectorList).Run(); }
void frmPage1::mnuStars_Click() { reports::QueryReport(*this, reports::StarList).Run(); }
void frmPage1::mnuGenre_Click() { reports::QueryReport(*this, reports::GenreList).Run(); }
