#include "driver/tooltip.h"
#include "scenario.h"
#include "tracking/tracking_ids.h"

namespace driver {
namespace {

class TrackingWindow : public Scenario {
 protected:
    TrackingWindow() {
        sandbox.WriteList(ListLine("0", sandbox.AddDocument("Châssis\\Plaque.SLDPRT")));
        cad.Start({"--hidden"});
        StartAndResume();
        app.Window("Tarnwick - suivi du travail -");
    }
};

TEST_F(TrackingWindow, ShowsItsTexts) {
    const std::pair<int, const char*> texts[] = {
        {IDC_FORM3_LABEL2, "Enchainement Sequentiel de Chargement de Fichiers  - SolidWorks -"},
        {IDC_FORM3_FRAME1, "Liste courante de fichiers à traiter "},
        {IDC_FORM3_CKSILENT, "Chargement des fichiers sans Message"},
        {IDC_FORM3_CKRECONS2, "Chargement avec recontruction tous niveaux"},
        {IDC_FORM3_CMDSUIV, "1-Sauver+Suiv >>"},
    };
    for (const auto& [id, text] : texts) EXPECT_EQ(app.TextOf(id), text);
    for (int hidden : {IDC_FORM3_CKMINIMISE, IDC_FORM3_CMDMEMO, IDC_FORM3_NUMFICHCOUR})
        EXPECT_FALSE(app.Visible(hidden)) << hidden;
}

TEST_F(TrackingWindow, KeepsItsToolTips) {
    EXPECT_EQ(ToolTipOf(app.Control(IDC_FORM3_CMDSUIV)),
              "Marquer comme FAIT et passer au suivant en sauvegardant  ");
    EXPECT_EQ(ToolTipOf(app.Control(IDC_FORM3_CMD1)),
              "Marquer comme \"FAIT\" et passer au suivant en sauvegardant");
    EXPECT_EQ(ToolTipOf(app.Control(IDC_FORM3_LIST1)),
              "Cliquez pour sélectionner un ou plusieurs fichiers.");
    EXPECT_EQ(ToolTipOf(app.Control(IDC_FORM3_CMDFICHIERLISTE)),
              "Sauvegarde de la liste actuelle dans un fichier. Ce fichier pourra être récupéré "
              "lors d'un nouveau démarrage de Tarnwick. ");
    EXPECT_EQ(ToolTipOf(app.Control(IDC_FORM3_CMD4)), "");
}

}  // namespace
}  // namespace driver
