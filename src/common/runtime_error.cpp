#include "common/runtime_error.h"

#include "common/numbers.h"

void RuntimeError::addPlace(int line, const std::wstring& file) {
    addLine(L"Ligne " + decimal(line) + L" de " + file);
}

namespace errors {
namespace {

RuntimeError about(int number, const wchar_t* sentence, const std::wstring& subject) {
    return {number, sentence + (subject.empty() ? std::wstring(L".") : L" : " + subject)};
}

}  // namespace

RuntimeError invalidArgument() { return {5, L"Appel de procédure ou argument incorrect."}; }

RuntimeError unwritableText() {
    return {5,
            L"Un nom de fichier contient des caractères qui ne peuvent pas être écrits dans un "
            L"fichier. Renommez ce document, puis recommencez."};
}

RuntimeError overflow() { return {6, L"Dépassement de capacité : le nombre est trop grand."}; }

RuntimeError outOfMemory() { return {7, L"Mémoire insuffisante."}; }

RuntimeError subscriptOutOfRange(const std::wstring& limit) {
    RuntimeError error{
        9, L"L'indice n'appartient pas à la sélection : la capacité d'une table est dépassée."};
    if (!limit.empty()) error.addLine(limit);
    return error;
}

RuntimeError typeMismatch(const std::wstring& expected) {
    return {13, L"Incompatibilité de type : " + expected + L"."};
}

RuntimeError unexpected() { return {51, L"Erreur interne de Tarnwick."}; }

RuntimeError system(const std::wstring& what) { return about(51, L"Windows a refusé", what); }

RuntimeError fileNotFound(const std::wstring& path) {
    return about(53, L"Fichier introuvable", path);
}

RuntimeError permissionDenied(const std::wstring& path) {
    return about(70, L"Permission refusée", path);
}

RuntimeError fileAccess(const std::wstring& path) {
    return about(75, L"Erreur d'accès au chemin ou au fichier", path);
}

RuntimeError pathNotFound(const std::wstring& path) {
    return about(76, L"Chemin d'accès introuvable", path);
}

RuntimeError emptyObject() { return {91, L"Objet vide : SolidWorks n'a pas donné de document."}; }

RuntimeError unknownMember(const std::wstring& name) {
    return about(438, L"Propriété ou méthode inconnue de l'objet", name);
}

RuntimeError automation(const std::wstring& description) {
    return {440, description.empty() ? L"L'appel de SolidWorks a échoué." : description};
}

}  // namespace errors
