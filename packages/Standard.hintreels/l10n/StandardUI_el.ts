<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="el">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Τεκμηρίωση</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Διατήρηση ανοιχτού σε παράθυρο</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Αναπαραγωγή</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Παύση</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Αναπαραγωγή ξανά</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Θέση στο κλιπ</translation>
    </message>
    <message>
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>Αναβοσβήνει γρήγορα, γι’ αυτό δεν αναπαράγεται μόνο του</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Συμβουλή</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Σημείωση</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Προειδοποίηση</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>συν</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Κλιπ</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 δ</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Αναπαράγεται</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Σε παύση</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Τέλος</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Υποδείξεις</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>Εμφάνιση υποδείξεων</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Περιεχόμενο</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Όλα</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Μόνο κείμενο</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>Τίτλος και περίληψη</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>Έναρξη σε μικρή μορφή</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>Εμφανίζονται</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>Όταν ο δείκτης σταματά</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Όσο πατιέται το Ctrl</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>Μόνο με πλήκτρο</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>Μετά από στάση</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Όπως συνήθως</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>Παραμένουν για</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>Μέχρι το κλείσιμο</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Κλιπ</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>Αυτόματη αναπαραγωγή</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Αναπαραγωγή μία φορά</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>Αναπαραγωγή κατόπιν αιτήματος</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>Εμφάνιση λεζαντών</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Μέγεθος κειμένου</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Περισσότερα</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Λιγότερα</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>Χωρίς αυτόματα κλιπ</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>Ρυθμίσεις υποδείξεων</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>Μικρή μορφή μετά την προβολή</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Ποτέ</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>Διαγραφή ιστορικού προβολών</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Κάτω</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Αριστερά</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Δεξιά</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Διάστημα</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Πάνω</translation>
    </message>
</context>
</TS>
