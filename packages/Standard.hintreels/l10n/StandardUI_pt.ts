<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="pt">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Documentação</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Manter aberto em uma janela</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Reproduzir novamente</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Posição no clipe</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Dica</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>mais</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Clipe</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Em reprodução</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Em pausa</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Terminado</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Baixo</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Esquerda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Direita</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espaço</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Cima</translation>
    </message>
</context>
</TS>
