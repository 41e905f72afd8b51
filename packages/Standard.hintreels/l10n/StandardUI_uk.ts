<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="uk">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Документація</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Залишити відкритим у вікні</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Відтворити</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Відтворити знову</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Місце в ролику</translation>
    </message>
    <message>
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>Швидко блимає, тому не відтворюється сам</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Порада</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Примітка</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Попередження</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>плюс</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Кліп</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 с</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Відтворюється</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Призупинено</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Завершено</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Підказки</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>Показувати підказки</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Вміст</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Усе</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Лише текст</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>Заголовок і короткий опис</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>Починати з малого вигляду</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>Поява</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>Коли вказівник завмирає</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Поки натиснуто Ctrl</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>Лише клавішею</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>Після паузи</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Як зазвичай</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>Показувати протягом</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>До закриття</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Кліпи</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>Відтворювати автоматично</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Відтворювати один раз</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>Відтворювати на вимогу</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>Показувати субтитри</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Розмір тексту</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Більше</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Менше</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>Без автоматичних кліпів</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>Налаштування підказок</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>Малий вигляд після перегляду</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Ніколи</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>Забути переглянуте</translation>
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
        <translation>Ліворуч</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Праворуч</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Пробіл</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вгору</translation>
    </message>
</context>
</TS>
