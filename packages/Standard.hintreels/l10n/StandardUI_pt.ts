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
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>Pisca rapidamente, por isso não é reproduzido sozinho</translation>
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
    <message>
        <source>Hints</source>
        <translation>Dicas</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>Mostrar dicas</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Conteúdo</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Tudo</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Só texto</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>Título e resumo</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>Começar pequeno</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>Aparecer</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>Quando o ponteiro para</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Enquanto Ctrl é mantido</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>Só com uma tecla</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>Após uma pausa de</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Como de costume</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>Permanecer por</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>Até fechar</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clipes</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>Reproduzir sozinhos</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Reproduzir uma vez</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>Reproduzir a pedido</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>Mostrar legendas</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Tamanho do texto</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mais</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Menos</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>Sem clipes automáticos</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>Definições das dicas</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>Pequeno depois de visto</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>Esquecer o que foi visto</translation>
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
