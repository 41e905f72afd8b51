<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="bg">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Документация</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Задържане отворено в прозорец</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Пускане</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Пускане отново</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Място в клипа</translation>
    </message>
    <message>
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>Премигва бързо, затова не се възпроизвежда само</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Съвет</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Бележка</translation>
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
        <translation>Възпроизвежда се</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>На пауза</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Завърши</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Подсказки</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>Показване на подсказки</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Съдържание</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Всичко</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Само текст</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>Заглавие и резюме</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>Започване в малък вид</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>Поява</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>Когато показалецът спре</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Докато Ctrl е натиснат</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>Само с клавиш</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>След покой от</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Както обикновено</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>Остават за</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>До затваряне</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Клипове</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>Пускане автоматично</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Пускане веднъж</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>Пускане при поискване</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>Показване на надписи</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Размер на текста</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Повече</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>По-малко</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>Без автоматични клипове</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>Настройки на подсказките</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>Малък вид след видени</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Никога</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>Забравяне на видяното</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Надолу</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Наляво</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Надясно</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Интервал</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Нагоре</translation>
    </message>
</context>
</TS>
