<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="ru">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Документация</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Оставить открытым в окне</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Воспроизвести</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Воспроизвести снова</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Место в ролике</translation>
    </message>
    <message>
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>Быстро мигает, поэтому не воспроизводится сам</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Совет</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Примечание</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>плюс</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Клип</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 с</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Воспроизводится</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>На паузе</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Завершено</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Подсказки</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>Показывать подсказки</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Содержание</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Всё</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Только текст</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>Заголовок и краткое описание</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>Начинать с малого вида</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>Появление</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>Когда указатель замирает</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Пока нажата Ctrl</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>Только по клавише</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>После паузы</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Как обычно</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>Показывать в течение</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>До закрытия</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Клипы</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>Воспроизводить автоматически</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Воспроизводить один раз</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>Воспроизводить по запросу</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>Показывать субтитры</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Размер текста</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Больше</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Меньше</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>Без автоматических клипов</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>Настройки подсказок</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>Малый вид после просмотра</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Никогда</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>Забыть просмотренное</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Вниз</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Влево</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Вправо</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Пробел</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вверх</translation>
    </message>
</context>
</TS>
