<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>DialupPlugin</name>
    <message>
        <source>IDS_DIALUP_PROMPT_TITLE</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>IDS_DIALUP_PROMPT_TEXT</source>
        <translation>Nom d’utilisateur et mot de passe pour «&#xa0;%1&#xa0;»&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USER</source>
        <translation>Nom d’utilisateur&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_DIALUP_PASSWORD</source>
        <translation>Mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CONNECT</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANCEL</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_SETTINGS</source>
        <translation>Les paramètres de connexion ne sont pas chargés.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_DEFAULT</source>
        <translation>Il n’y a pas de profil par défaut. Choisissez-en un dans les paramètres.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_PROFILE</source>
        <translation>Il n’y a pas de profil «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_SIMULATED</source>
        <translation>Seul le modem simulé peut établir une connexion.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_READY</source>
        <translation>Le modem n’est pas prêt.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_CARRIER</source>
        <translation>Le réseau ne répond pas (pas de porteuse).</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTHENTICATION_FAILED</source>
        <translation>Le réseau a refusé le nom d’utilisateur ou le mot de passe.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_SIGNAL</source>
        <translation>Le modem ne capte aucun signal.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANCELLED</source>
        <translation>La connexion a été annulée.</translation>
    </message>
</context>
<context>
    <name>NetConnectPlugin</name>
    <message>
        <source>IDS_SETTING_NAME</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>IDS_TABPAGE_NETCONNECTSETTINGDLG_DIALUP</source>
        <translation>Accès à distance</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_NETWORK_CONNECT_SELECT</source>
        <translation>P&amp;rofil de connexion</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_VALIDATE</source>
        <translation>Authentification</translation>
    </message>
    <message>
        <source>IDS_SETTING_GROUP_Authentication_protocol</source>
        <translation>Authentification par</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_APN_NAME</source>
        <translation>&amp;APN&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_NUMBER</source>
        <translation>N° d’a&amp;ccès&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_USENAME</source>
        <translation>&amp;Utilisateur&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_PASSWORD</source>
        <translation>Mo&amp;t de passe&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_SETTING_RADIO_APN_IP_DYNAMIC</source>
        <translation>Dynamique</translation>
    </message>
    <message>
        <source>IDS_SETTING_RADIO_APN_IP_STATIC</source>
        <translation>Fixe</translation>
    </message>
    <message>
        <source>IDS_USERNAME_AND_PASSWORD</source>
        <translation>Demander à &amp;la connexion</translation>
    </message>
    <message>
        <source>IDS_SETTING_CHECK_CHAP</source>
        <translation>C&amp;HAP</translation>
    </message>
    <message>
        <source>IDS_SETTING_CHECK_PAP</source>
        <translation>&amp;PAP</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_NEW</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_DELETE</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_EDIT</source>
        <translation>&amp;Modifier</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_SAVE</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_NO_SAVE</source>
        <translation>A&amp;bandonner</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_DEFAULT</source>
        <translation>Par &amp;défaut</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_INPUT</source>
        <translation>&amp;Importer…</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_OUTPUT</source>
        <translation>E&amp;xporter…</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_HIGH</source>
        <translation>A&amp;vancé…</translation>
    </message>
    <message>
        <source>IDS_STC_NETCONNECTSETTINGDLG_DEFAULT</source>
        <translation>(par défaut)</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>Paramètres de connexion</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>IDS_YES</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>IDS_NO</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_PROFILE_NAME</source>
        <translation>Veuillez saisir un nom de profil.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_PROFILE_NAME_SAME</source>
        <translation>Un profil portant ce nom existe déjà. Veuillez choisir un autre nom.</translation>
    </message>
    <message>
        <source>IDS_MSG_CONNECTSETTINGDLG_PROFILENAMEERR</source>
        <translation>Le nom du profil ne doit contenir aucun de ces caractères&#xa0;: </translation>
    </message>
    <message>
        <source>IDS_MSG_CONNECTSETTINGDLG_NULLNUMBER</source>
        <translation>Veuillez saisir le numéro d’accès, par exemple *99#.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_APN_ERROR</source>
        <translation>L’APN n’est pas valide. Il peut contenir des lettres, des chiffres, des points et des tirets, et doit commencer et se terminer par une lettre ou un chiffre.</translation>
    </message>
    <message>
        <source>IDS_SMSUI_DRAFT_DEL</source>
        <translation>Voulez-vous supprimer ce profil&#xa0;?</translation>
    </message>
    <message>
        <source>IDS_SETTING_QUERY_USER_TO_SAVE</source>
        <translation>Le profil contient des modifications non enregistrées. Voulez-vous les enregistrer&#xa0;?</translation>
    </message>
    <message>
        <source>IDS_NET_TIPS_PROFILEEXIST</source>
        <translation>existe déjà. Voulez-vous remplacer ce profil&#xa0;?</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_SAME_FOR_REMAINING</source>
        <translation>Appliquer la même réponse aux profils restants</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_APN_IP</source>
        <translation>L’adresse IP n’est pas valide. Veuillez en saisir une comme 192.0.2.1.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_DNS_IP</source>
        <translation>L’adresse du serveur DNS n’est pas valide. Veuillez en saisir une comme 192.0.2.1.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_WINS_IP</source>
        <translation>L’adresse du serveur WINS n’est pas valide. Veuillez en saisir une comme 192.0.2.1.</translation>
    </message>
    <message>
        <source>IDS_TITLE_IMPORTDLG</source>
        <translation>Importer des profils</translation>
    </message>
    <message>
        <source>IDS_TITLE_EXPORTDLG</source>
        <translation>Exporter des profils</translation>
    </message>
    <message>
        <source>IDS_TREENODE_PROFILEINPUTDLG_DIALUP</source>
        <translation>Profils d’accès à distance</translation>
    </message>
    <message>
        <source>IDS_SETTING_BROWSE_TELEPHLONE</source>
        <translation>&amp;Parcourir…</translation>
    </message>
    <message>
        <source>IDS_STC_DIALUPDLG_ADVANCE</source>
        <translation>Paramètres avancés</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_APN_IP</source>
        <translation>Adresse IP</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_SET_DNS</source>
        <translation>Serveurs DNS</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_SET_WINS</source>
        <translation>Serveurs WINS</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_IP</source>
        <translation>Adresse &amp;IP&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_DNS</source>
        <translation>P&amp;rimaire&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_DNS_SECOND</source>
        <translation>&amp;Secondaire&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_WINS1</source>
        <translation>Pri&amp;maire&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_WINS_SECOND</source>
        <translation>S&amp;econdaire&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_NEW_PROFILE</source>
        <translation>Nouveau profil</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_READONLY</source>
        <translation>Ce profil est en lecture seule. Pour le modifier, appuyez sur «&#xa0;Nouveau&#xa0;» et saisissez ses valeurs sous un autre nom.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_PRESET</source>
        <translation>Ce profil est prédéfini. Pour le modifier, appuyez sur «&#xa0;Nouveau&#xa0;» et saisissez ses valeurs sous un autre nom.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_CONNECTED</source>
        <translation>Ce profil est connecté. Déconnectez-vous d’abord.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_DEFAULT_CONNECTED</source>
        <translation>Le profil par défaut ne peut pas être changé pendant une connexion. Déconnectez-vous d’abord.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_NO_PROFILE</source>
        <translation>Il n’y a encore aucun profil. Appuyez sur «&#xa0;Nouveau&#xa0;» pour en créer un.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_EDIT_OPEN</source>
        <translation>Un profil est en cours de modification. Appuyez d’abord sur «&#xa0;Enregistrer&#xa0;» ou «&#xa0;Abandonner&#xa0;».</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_NO_EDIT</source>
        <translation>Aucun profil n’est en cours de modification. Appuyez d’abord sur «&#xa0;Nouveau&#xa0;» ou «&#xa0;Modifier&#xa0;».</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_READONLY</source>
        <translation>Ce profil est en lecture seule.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_PRESET</source>
        <translation>Ce profil est prédéfini.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_CONNECTED</source>
        <translation>Ce profil est connecté.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_SAVE_FAILED</source>
        <translation>Le profil n’a pas pu être enregistré. Rien n’est perdu&#xa0;: corrigez le problème et appuyez de nouveau sur «&#xa0;Enregistrer&#xa0;».</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_HINT_PASSWORD</source>
        <translation>Certains caractères sont refusés&#xa0;: latin occidental uniquement.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_PROFILE_LIST</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_PROFILE_NAME</source>
        <translation>Nom du profil</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_TRANSFER_TREE</source>
        <translation>Profils à choisir</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_EXPORT_WILDCARD</source>
        <translation>Un nom de fichier ne peut pas contenir «&#xa0;*&#xa0;». Veuillez en saisir un autre.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_EXPORT_MERGE</source>
        <translation>existe déjà. Ses profils sont conservés&#xa0;; ceux de même nom sont remplacés. Exporter dans ce fichier&#xa0;?</translation>
    </message>
</context>
<context>
    <name>OrbisDial</name>
    <message>
        <source>IDS_HOST_TITLE</source>
        <translation>OrbisDial</translation>
    </message>
    <message>
        <source>IDS_HOST_TITLE_SIMULATED</source>
        <translation>OrbisDial (modem simulé)</translation>
    </message>
    <message>
        <source>IDS_HOST_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_HOST_CANCEL</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGES</source>
        <translation>Pages de paramètres</translation>
    </message>
    <message>
        <source>IDS_HOST_DEFAULT_PROFILE</source>
        <translation>Profil par défaut&#xa0;: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DEFAULT_PROFILE</source>
        <translation>Aucun profil par défaut</translation>
    </message>
    <message>
        <source>IDS_HOST_CONNECT</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>IDS_HOST_DISCONNECT</source>
        <translation>Se déconnecter</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_DISCONNECTED</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTING</source>
        <translation>Connexion en cours…</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTED</source>
        <translation>Connecté avec %1</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_DISCONNECTING</source>
        <translation>Déconnexion en cours…</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_FAILED</source>
        <translation>Non connecté&#xa0;: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DIALER</source>
        <translation>Aucun module d’accès à distance n’est chargé</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_NONE</source>
        <translation>Aucune carte SIM trouvée</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM</source>
        <translation>Carte SIM %1</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_PRESET</source>
        <translation>Carte SIM %1&#xa0;: profil prédéfini «&#xa0;%2&#xa0;», choisi d’après son préfixe %3</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_PREFIX</source>
        <translation>Carte SIM %1&#xa0;: le préfixe %2 est connu, mais aucun de ses profils prédéfinis n’est proposé par défaut</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_NO_MATCH</source>
        <translation>Carte SIM %1&#xa0;: aucun profil prédéfini ne correspond</translation>
    </message>
    <message>
        <source>IDS_HOST_STORAGE_PROBLEM</source>
        <translation>Problème d’enregistrement&#xa0;: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_PROBLEM</source>
        <translation>%1 est inutilisable&#xa0;: %2</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_LOAD_FAILED</source>
        <translation>le chargement a échoué (%1)</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_FOREIGN</source>
        <translation>ce n’est pas un module de ce programme</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_TAKEN</source>
        <translation>un autre module a le même identifiant</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_INIT_FAILED</source>
        <translation>le démarrage a échoué</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_PROBLEM</source>
        <translation>Le modem est inutilisable&#xa0;: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_NAME</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>IDS_HOST_LANGUAGE</source>
        <translation>Langue&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCK_DEFAULT</source>
        <translation>Conserver le profil par défaut&#xa0;: masquer le bouton «&#xa0;Par défaut&#xa0;»</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_NOT_SAVED</source>
        <translation>Les paramètres n’ont pas pu être enregistrés.</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_TITLE</source>
        <translation>Modem simulé</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_IMSI</source>
        <translation>IMSI&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_CARD</source>
        <translation>pas de carte</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_READY</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_MULTI_MODE</source>
        <translation>Carte multimode</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CARD_MODE</source>
        <translation>Mode de carte&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CARD_MODE_NONE</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_PRODUCT_TYPE</source>
        <translation>Type de modem&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SYSTEM_MODE</source>
        <translation>Mode système&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SYSTEM_SUBMODE</source>
        <translation>Sous-mode&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_OUTCOME</source>
        <translation>Appel&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_ANSWERS</source>
        <translation>Réponse</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_CARRIER</source>
        <translation>Pas de porteuse</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_AUTHENTICATION_FAILS</source>
        <translation>Échec d’authentification</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_SIGNAL</source>
        <translation>Pas de signal</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_INITIALISE</source>
        <translation>Initialiser</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CHANGE_CARD</source>
        <translation>Changer de carte</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SETTING</source>
        <translation>Réglage&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_DROP</source>
        <translation>Couper</translation>
    </message>
</context>
</TS>
