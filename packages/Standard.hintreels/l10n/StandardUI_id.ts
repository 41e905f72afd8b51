<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="id">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Dokumentasi</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Tetap buka dalam jendela</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Putar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Jeda</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Putar lagi</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Posisi dalam klip</translation>
    </message>
    <message>
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>Berkedip cepat, jadi tidak diputar dengan sendirinya</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Tips</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Catatan</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Peringatan</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>plus</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Klip</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 dtk</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Diputar</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Dijeda</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Selesai</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Petunjuk</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>Tampilkan petunjuk</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Isi</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Semuanya</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Teks saja</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>Judul dan ringkasan</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>Mulai dengan kecil</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>Muncul</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>Saat penunjuk berhenti</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Selama Ctrl ditahan</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>Hanya dengan tombol</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>Setelah berhenti selama</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Seperti biasa</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>Bertahan selama</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>Sampai ditutup</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Klip</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>Putar dengan sendirinya</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Putar sekali</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>Putar bila diminta</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>Tampilkan teks klip</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Ukuran teks</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Lebih banyak</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Lebih sedikit</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>Tanpa klip otomatis</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>Setelan petunjuk</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>Kecil setelah dilihat</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Tidak pernah</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>Lupakan yang sudah dilihat</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Bawah</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Kiri</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Kanan</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spasi</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Atas</translation>
    </message>
</context>
</TS>
