<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="tr">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Belgeler</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Pencerede açık tut</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Oynat</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Yeniden oynat</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Klipteki konum</translation>
    </message>
    <message>
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>Hızlı yanıp söner, bu yüzden kendiliğinden oynatılmaz</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>İpucu</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Not</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Uyarı</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>artı</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Klip</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 sn</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Oynatılıyor</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Duraklatıldı</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>İpuçları</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>İpuçlarını göster</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>İçerik</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Her şey</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Yalnızca metin</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>Başlık ve özet</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>Küçük başla</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>Görünme</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>İmleç durduğunda</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Ctrl basılıyken</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>Yalnızca tuşla</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>Şu kadar duruştan sonra</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Her zamanki gibi</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>Kalma süresi</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>Kapatılana dek</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Klipler</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>Kendiliğinden oynat</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Bir kez oynat</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>İstendiğinde oynat</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>Altyazıları göster</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Metin boyutu</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Daha fazla</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Daha az</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>Klipler kendiliğinden oynamasın</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>İpucu ayarları</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>Görülünce küçük</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Hiçbir zaman</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>Görülenleri unut</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Aşağı</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sol</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Sağ</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Boşluk</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Yukarı</translation>
    </message>
</context>
</TS>
