#include "demo/sample_documents.h"

namespace driver::demo {
namespace {

constexpr const char* kDocuments[] = {
    "Presse hydraulique\\Presse hydraulique.SLDASM",
    "Presse hydraulique\\Bâti\\Bâti mécano-soudé.SLDASM",
    "Presse hydraulique\\Bâti\\Montant gauche.SLDPRT",
    "Presse hydraulique\\Bâti\\Montant droit.SLDPRT",
    "Presse hydraulique\\Bâti\\Traverse supérieure.SLDPRT",
    "Presse hydraulique\\Vérin\\Vérin Ø80.SLDASM",
    "Presse hydraulique\\Vérin\\Corps de vérin.SLDPRT",
    "Presse hydraulique\\Vérin\\Tige chromée.SLDPRT",
    "Presse hydraulique\\Plans\\Presse - ensemble.SLDDRW",
    "Presse hydraulique\\Plans\\Bâti n° 1.SLDDRW",
    "Convoyeur à rouleaux\\Convoyeur à rouleaux.SLDASM",
    "Convoyeur à rouleaux\\Châssis\\Longeron.SLDPRT",
    "Convoyeur à rouleaux\\Châssis\\Pied réglable.SLDPRT",
    "Convoyeur à rouleaux\\Rouleaux\\Rouleau libre.SLDPRT",
    "Convoyeur à rouleaux\\Rouleaux\\Rouleau moteur.SLDPRT",
    "Convoyeur à rouleaux\\Rouleaux\\Axe de rouleau.SLDPRT",
    "Convoyeur à rouleaux\\Plans\\Convoyeur - ensemble.SLDDRW",
    "Convoyeur à rouleaux\\Plans\\Châssis.SLDDRW",
    "Étau d'établi\\Étau d'établi.SLDASM",
    "Étau d'établi\\Mors fixe.SLDPRT",
    "Étau d'établi\\Mors mobile.SLDPRT",
    "Étau d'établi\\Vis de manœuvre.SLDPRT",
    "Étau d'établi\\Plans\\Étau.SLDDRW",
    "Visserie\\Écrou [H] M8.SLDPRT",
    "Visserie\\Rondelle plate 8.SLDPRT",
    "Visserie\\Vis CHC M8x30.SLDPRT",
    "Visserie\\Vis H M12x50.SLDPRT",
};

}  // namespace

std::vector<std::string> createSampleDocuments(const Sandbox& sandbox) {
    std::vector<std::string> paths;
    for (const char* document : kDocuments) paths.push_back(sandbox.addDocument(document));
    return paths;
}

}  // namespace driver::demo
