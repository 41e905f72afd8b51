<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="fr">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Documentation</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Garder ouvert dans une fenêtre</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Mettre en pause</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Relire</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Position dans le clip</translation>
    </message>
    <message>
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>Clignote rapidement et ne démarre donc pas tout seul</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Astuce</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>plus</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Clip</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>En lecture</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Infobulles</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>Afficher les infobulles</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Contenu</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Texte seulement</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>Titre et résumé</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>Commencer en petit</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>Apparition</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>Quand le pointeur s’arrête</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Tant que Ctrl est enfoncée</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>Seulement par une touche</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>Après un arrêt de</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Comme d’habitude</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>Durée d’affichage</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>Jusqu’à la fermeture</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clips</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>Lire automatiquement</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Lire une fois</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>Lire à la demande</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>Afficher les sous-titres</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Taille du texte</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Moins</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>Pas de clips automatiques</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>Réglages des infobulles</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>En petit une fois vue</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Jamais</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>Oublier ce qui a été vu</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Backspace</source>
        <translation>Retour arrière</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Suppr</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Ins</source>
        <translation>Inser</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>Page suiv.</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>Page préc.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Impr. écran</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Haut</translation>
    </message>
</context>
<context>
    <name>SpokenKeys</name>
    <message>
        <source>Control</source>
        <translation>Contrôle</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Suppression</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insertion</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Échappement</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Majuscule</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Impression d’écran</translation>
    </message>
</context>
</TS>
