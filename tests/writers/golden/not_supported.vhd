--==== mg634.vhd ====
--stage HELD=1 LBX_SINGLE_OUTPUT_FILE="OFF" d q
--


-- (legal notice)



--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  mg634 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END mg634;

 ARCHITECTURE RTL OF mg634 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_u2_w_lg_d1w	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_u2_w_lg_w_lg_d1w2w	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  en	:	STD_LOGIC;
	 SIGNAL  keep :	STD_LOGIC_VECTOR (3 DOWNTO 0);
 BEGIN

	loop0 : FOR i IN 0 TO 3 GENERATE 
		wire_u2_w_lg_d1w(i) <= d(i) AND keep(i);
	END GENERATE loop0;
	loop1 : FOR i IN 0 TO 3 GENERATE 
		wire_u2_w_lg_w_lg_d1w2w(i) <= wire_u2_w_lg_d1w(i) XOR en;
	END GENERATE loop1;
	en <= '1';
	keep <= "1110";
	q <= wire_u2_w_lg_w_lg_d1w2w;

 END RTL; --mg634
--VALID FILE
--==== top.vhd ====
--top LBX_SINGLE_OUTPUT_FILE="OFF" d
--


-- (legal notice)



--synthesis_resources = box 1 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END top;

 ARCHITECTURE RTL OF top IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_u1_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_u2_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 COMPONENT  box
	 GENERIC 
	 (
		DEPTH	:	NATURAL := 2;
		lpm_hint	:	STRING := "UNUSED";
		lpm_type	:	STRING := "box"
	 );
	 PORT
	 ( 
		d	:	IN STD_LOGIC_VECTOR(3 DOWNTO 0);
		q	:	OUT STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
	 COMPONENT  mg634
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	q <= wire_u2_q;
	u1 :  box
	  GENERIC MAP (
		DEPTH => 3
	  )
	  PORT MAP ( 
		d => d,
		q => wire_u1_q
	  );
	u2 :  mg634
	  PORT MAP ( 
		d => wire_u1_q,
		q => wire_u2_q
	  );

 END RTL; --top
--VALID FILE
